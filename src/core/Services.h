#pragma once
// The file and process services every window uses, over the path map and the host: file and
// folder tests, whole-file text, running commands, ending processes, registry reads, and the file
// statements, which raise numbered failures where a Windows program's statements would fail.

#include "core/platform/PathMap.h"
#include "core/platform/ProcessRunner.h"
#include "core/platform/Registry.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace ui
{
class Host;
}

namespace core
{

class Services
{
public:
    // systemFolder: the host folder of the workbench's executable (where serz.exe lies).
    Services(const platform::PathMap &paths, ui::Host &host, const QString &systemFolder);

    const platform::PathMap &paths() const { return m_paths; }

    // --- the services every window calls; they report no failures ---

    // True when the file can be opened for reading; a folder or a locked file counts as absent.
    bool FileExists(const QString &path) const;
    // Cuts one trailing backslash from the caller's text, then tests for a folder.
    bool FolderExists(QString &path) const;
    // The whole file: Unicode when the path ends in "mkr" (any case), else Windows-1252. Yields
    // once. A missing file gives empty text.
    QString ReadFile(const QString &path) const;
    // Writes Windows-1252 through a temporary file and a rename, then yields; a file left empty
    // shows "An error occurred while writing " + path.
    void WriteFile(const QString &path, const QString &text) const;
    // Copies a folder's tree into destination (created as needed); existing files are replaced
    // only when overwrite is set. Failures raise, as the original copy does.
    void CopyFolder(const QString &source, const QString &destination, bool overwrite) const;
    // Deletes a folder and all it holds; any failure (a missing folder) is swallowed.
    void DelAll(const QString &folder) const;
    // Runs a command line and waits for its end, yielding to the host if asked; the process id,
    // or 0 when it could not start (the failure is swallowed).
    qint64 ShellAndWait(const QString &commandLine, bool yield = true, bool hidden = true) const;
    // Starts a program without waiting (the game, a viewer); the process id or 0.
    qint64 StartDetached(const QString &commandLine) const;
    void KillProcess(const QString &imageName) const;
    // The host's folder picker; a Windows path, empty when cancelled.
    QString BrowseForFolder(const QString &title) const;
    // A missing key gives the default; an unreadable value raises 1001 "Unsupported value type".
    QVariant GetRegValue(platform::RegistryRoot root,
                         const QString &subkey,
                         const QString &valueName,
                         const QVariant &defaultValue = {}) const;

    // --- file statements; these raise platform::Failure with the Windows numbers ---

    void FileCopy(const QString &source, const QString &destination) const;
    // Deletes files; the name may hold wildcards. 53 when nothing matches.
    void Kill(const QString &path) const;
    // Renames a file or folder: 58 when the target exists, 53 when the source is missing.
    void Name(const QString &oldPath, const QString &newPath) const;
    // 75 when it exists, 76 when the parent folder is missing.
    void MkDir(const QString &path) const;
    // 76 when missing, 75 when not empty.
    void RmDir(const QString &path) const;
    // 76 when the folder is missing; the drive stays as it is.
    void ChDir(const QString &path) const;
    // 68 "Device unavailable" when the drive has no folder on this host.
    void ChDrive(const QString &drive) const;
    QString CurDir() const;
    // 53 when missing.
    qint64 FileLen(const QString &path) const;
    // Names (not paths) of the files matching a pattern ("*.bin", "*.*"), sorted case-blind.
    QStringList listFiles(const QString &folder,
                          const QString &pattern = QStringLiteral("*.*")) const;
    // Names of the sub-folders, sorted case-blind.
    QStringList listFolders(const QString &folder) const;
    // Lines as Line Input reads them: each ends at CR LF or at a lone CR (a lone LF stays in the
    // line). 53 when missing.
    QStringList ReadLines(const QString &path) const;
    void WriteBinary(const QString &path, const QByteArray &bytes) const;
    // 53 when missing.
    QByteArray ReadBinary(const QString &path) const;

private:
    void writeBytes(const QString &path, const QByteArray &bytes) const;

    const platform::PathMap &m_paths;
    ui::Host &m_host;
    platform::ProcessRunner m_runner;
};

} // namespace core
