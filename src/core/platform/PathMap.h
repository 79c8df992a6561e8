#pragma once
// Maps the program's Windows paths (drive letter, backslashes, case-blind names) onto the host's
// file system at each call, and host paths back; holds the current drive and folder.

#include "core/platform/FolderListings.h"

#include <QChar>
#include <QHash>
#include <QString>

namespace platform
{

class PathMap
{
public:
    // Whether changeDir also makes the path's drive the current one (as "cd /d" does) or only
    // sets that drive's folder (as "cd" and ChDir do).
    enum class DriveChange { Switch, Keep };

    // C: is $WINEPREFIX/drive_c (else ~/.wine/drive_c) when that exists, else ownDriveC, a host
    // folder of the program's own. The current folder starts as the host's current folder.
    explicit PathMap(const QString &ownDriveC = {});

    // A map whose C: is the Wine prefix's drive_c when there is one; tests use it on Z: paths.
    static PathMap forHostRoot() { return PathMap(); }

    // The host path of a Windows path: relative paths resolve against the current folder, "/",
    // doubled separators, "." and ".." are accepted, and each existing component is matched
    // case-blind; components that do not exist yet are kept as written.
    QString toHost(const QString &winPath) const;

    // The Windows form of a host path: C:\... under drive_c, else Z:\....
    QString toWindows(const QString &hostPath) const;

    // The absolute, normalised Windows form of a path ("C:\a\b", "Z:\"), without a trailing
    // backslash except on a drive's root; relative paths resolve against the current folder.
    QString absolute(const QString &winPath) const;

    // Fails (returns false, nothing changes) when the folder does not exist. The current folder is
    // the process's state, not part of the mapping, hence const.
    bool changeDir(const QString &winPath, DriveChange drive = DriveChange::Switch) const;
    // Makes the drive of a text such as "C:" or "c:\x" current, at that drive's last folder.
    bool changeDrive(const QString &drive) const;
    QString currentDir() const;
    QString currentDirOf(QChar drive) const;

    // The host folder that C: stands for.
    const QString &driveC() const { return m_driveC; }

private:
    QString hostRootOf(QChar drive) const;
    QString resolveCaseBlind(const QString &hostRoot, const QStringList &components) const;

    QString m_driveC;
    QString m_wineDevices; // $WINEPREFIX/dosdevices, for drives other than C: and Z:
    mutable QChar m_drive;
    mutable QHash<QChar, QString> m_dirs; // drive letter (upper case) -> absolute Windows folder
    mutable FolderListings m_listings;
};

// The Z:\ form of a host path, for callers without a map at hand (tests, dialogs).
QString toWindowsPath(const QString &hostPath);

} // namespace platform
