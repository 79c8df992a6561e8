#include "core/platform/PathMap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace platform
{

namespace
{

QString joinHost(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool isDriveLetter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool hasDrive(const QString &path)
{
    return path.size() >= 2 && path[1] == u':' && isDriveLetter(path[0]);
}

QString winePrefix()
{
    const QString prefix = qEnvironmentVariable("WINEPREFIX");
    return prefix.isEmpty() ? QDir::homePath() + QStringLiteral("/.wine") : prefix;
}

} // namespace

PathMap::PathMap(const QString &ownDriveC)
{
    const QString prefix = winePrefix();
    if (QFileInfo(prefix + QStringLiteral("/drive_c")).isDir()) {
        m_driveC =
            QDir::cleanPath(QFileInfo(prefix + QStringLiteral("/drive_c")).absoluteFilePath());
        m_wineDevices = prefix + QStringLiteral("/dosdevices");
    } else if (!ownDriveC.isEmpty()) {
        m_driveC = QDir::cleanPath(QFileInfo(ownDriveC).absoluteFilePath());
    } else {
        m_driveC = QDir::homePath() + QStringLiteral("/.local/share/BrakevanMax/drive_c");
    }
    const QString here = toWindows(QDir::currentPath());
    m_drive = here[0];
    m_dirs.insert(m_drive, here);
}

QString PathMap::absolute(const QString &winPath) const
{
    QString path = winPath;
    path.replace(u'/', u'\\');
    QChar drive = m_drive;
    QString rest;
    if (hasDrive(path)) {
        drive = path[0].toUpper();
        rest = path.mid(2);
        if (!rest.startsWith(u'\\')) {
            rest = currentDirOf(drive).mid(2) + u'\\' + rest;
        }
    } else if (path.startsWith(u'\\')) {
        rest = path;
    } else {
        rest = currentDir().mid(2) + u'\\' + path;
    }
    QStringList parts;
    for (const QString &part : rest.split(u'\\', Qt::SkipEmptyParts)) {
        if (part == u".") {
            continue;
        }
        if (part == u"..") {
            if (!parts.isEmpty()) {
                parts.removeLast();
            }
            continue;
        }
        parts << part;
    }
    return QString(drive) + QStringLiteral(":\\") + parts.join(u'\\');
}

QString PathMap::hostRootOf(QChar drive) const
{
    const QChar d = drive.toUpper();
    if (d == u'Z') {
        return QStringLiteral("/");
    }
    if (d == u'C') {
        return m_driveC;
    }
    if (!m_wineDevices.isEmpty()) {
        const QFileInfo device(m_wineDevices + u'/' + d.toLower() + u':');
        if (device.isDir()) {
            return device.canonicalFilePath();
        }
    }
    // A drive this host does not have: a root that no file lies under.
    return QStringLiteral("/:") + d;
}

#ifndef Q_OS_WIN
QString PathMap::resolveCaseBlind(const QString &hostRoot, const QStringList &components) const
{
    QString path = hostRoot;
    for (qsizetype i = 0; i < components.size(); ++i) {
        const QString exact = joinHost(path, components[i]);
        if (QFileInfo::exists(exact)) {
            path = exact;
            continue;
        }
        const QString found = m_listings.find(path, components[i]);
        if (found.isEmpty()) {
            // Not there yet: the rest is kept as written, below the folder that does exist.
            for (qsizetype j = i; j < components.size(); ++j) {
                path = joinHost(path, components[j]);
            }
            return path;
        }
        path = joinHost(path, found);
    }
    return path;
}
#endif

QString PathMap::toHost(const QString &winPath) const
{
#ifdef Q_OS_WIN
    return absolute(winPath);
#else
    const QString abs = absolute(winPath);
    const QString root = hostRootOf(abs[0]);
    const QStringList components = abs.mid(3).split(u'\\', Qt::SkipEmptyParts);
    if (components.isEmpty()) {
        return root;
    }
    // Most paths the program uses exist as written: one look settles them.
    const QString direct = joinHost(root, components.join(u'/'));
    if (QFileInfo::exists(direct)) {
        return direct;
    }
    return resolveCaseBlind(root, components);
#endif
}

QString PathMap::toWindows(const QString &hostPath) const
{
#ifdef Q_OS_WIN
    return absolute(hostPath);
#else
    const QString clean = QDir::cleanPath(QFileInfo(hostPath).absoluteFilePath());
    QString rest;
    QChar drive = u'Z';
    if (!m_driveC.isEmpty() && (clean == m_driveC || clean.startsWith(m_driveC + u'/'))) {
        drive = u'C';
        rest = clean.mid(m_driveC.size());
    } else {
        rest = clean;
    }
    rest.replace(u'/', u'\\');
    if (rest.startsWith(u'\\')) {
        rest.remove(0, 1);
    }
    return QString(drive) + QStringLiteral(":\\") + rest;
#endif
}

bool PathMap::changeDir(const QString &winPath, DriveChange drive) const
{
    const QString abs = absolute(winPath);
    if (!QFileInfo(toHost(abs)).isDir()) {
        return false;
    }
    m_dirs.insert(abs[0], abs);
    if (drive == DriveChange::Switch) {
        m_drive = abs[0];
    }
    return true;
}

bool PathMap::changeDrive(const QString &drive) const
{
    if (drive.isEmpty() || !isDriveLetter(drive[0])) {
        return false;
    }
    const QChar d = drive[0].toUpper();
    if (!QFileInfo(hostRootOf(d)).isDir()) {
        return false;
    }
    m_drive = d;
    return true;
}

QString PathMap::currentDir() const
{
    return currentDirOf(m_drive);
}

QString PathMap::currentDirOf(QChar drive) const
{
    const QChar d = drive.toUpper();
    return m_dirs.value(d, QString(d) + QStringLiteral(":\\"));
}

QString toWindowsPath(const QString &hostPath)
{
#ifdef Q_OS_WIN
    return QDir::toNativeSeparators(hostPath);
#else
    QString path = QDir::cleanPath(QFileInfo(hostPath).absoluteFilePath());
    path.replace(u'/', u'\\');
    return QStringLiteral("Z:") + (path == u"\\" ? QStringLiteral("\\") : path);
#endif
}

} // namespace platform
