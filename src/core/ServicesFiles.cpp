// The file statements of the services: each raises the failure number the Windows statement does.

#include "core/Services.h"
#include "core/platform/Cp1252.h"
#include "core/platform/FileOps.h"
#include "core/platform/Wildcard.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core
{

namespace
{

bool caseBlindLess(const QString &a, const QString &b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}

QStringList sortedCaseBlind(QStringList names)
{
    std::sort(names.begin(), names.end(), caseBlindLess);
    return names;
}

QString parentHost(const QString &host)
{
    return QFileInfo(host).absolutePath();
}

} // namespace

void Services::FileCopy(const QString &source, const QString &destination) const
{
    const QString from = m_paths.toHost(source);
    if (!QFileInfo(from).isFile()) {
        platform::raise(platform::FileNotFound);
    }
    const QString to = m_paths.toHost(destination);
    if (!QFileInfo(parentHost(to)).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    if (QFileInfo(to).isDir() || platform::FileOps::isReadOnly(to)
        || !platform::FileOps::copyReplacing(from, to)) {
        platform::raise(platform::PathFileAccess);
    }
}

void Services::Kill(const QString &path) const
{
    const QString abs = m_paths.absolute(path);
    const qsizetype cut = abs.lastIndexOf(u'\\');
    const QString pattern = abs.mid(cut + 1);
    const QString folder = m_paths.toHost(abs.left(std::max<qsizetype>(cut, 3)));
    QStringList victims;
    if (platform::Wildcard::hasWildcards(pattern)) {
        for (const QString &name :
             QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System)) {
            if (platform::Wildcard::matches(pattern, name)) {
                victims << QDir(folder).filePath(name);
            }
        }
    } else if (QFileInfo(m_paths.toHost(abs)).isFile()) {
        victims << m_paths.toHost(abs);
    }
    if (victims.isEmpty()) {
        platform::raise(platform::FileNotFound);
    }
    for (const QString &victim : std::as_const(victims)) {
        if (platform::FileOps::isReadOnly(victim) || !QFile::remove(victim)) {
            platform::raise(platform::PathFileAccess);
        }
    }
}

void Services::Name(const QString &oldPath, const QString &newPath) const
{
    const QString from = m_paths.toHost(oldPath);
    if (!QFileInfo::exists(from)) {
        platform::raise(platform::FileNotFound);
    }
    QString to = m_paths.toHost(newPath);
    const bool sameFile = QFileInfo(to).canonicalFilePath() == QFileInfo(from).canonicalFilePath();
    if (sameFile) {
        // Only the letter case changes: the new spelling of the last name is what counts.
        const QString abs = m_paths.absolute(newPath);
        to = QDir(parentHost(from)).filePath(abs.mid(abs.lastIndexOf(u'\\') + 1));
    } else if (QFileInfo::exists(to)) {
        platform::raise(platform::FileAlreadyExists);
    }
    if (!QFileInfo(parentHost(to)).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    if (!QDir().rename(from, to)) {
        platform::raise(platform::PathFileAccess);
    }
}

void Services::MkDir(const QString &path) const
{
    const QString host = m_paths.toHost(path);
    if (QFileInfo::exists(host)) {
        platform::raise(platform::PathFileAccess);
    }
    if (!QFileInfo(parentHost(host)).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    if (!QDir().mkdir(host)) {
        platform::raise(platform::PathFileAccess);
    }
}

void Services::RmDir(const QString &path) const
{
    const QString host = m_paths.toHost(path);
    if (!QFileInfo(host).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    if (!QDir().rmdir(host)) {
        platform::raise(platform::PathFileAccess);
    }
}

void Services::ChDir(const QString &path) const
{
    if (!m_paths.changeDir(path, platform::PathMap::DriveChange::Keep)) {
        platform::raise(platform::PathNotFound);
    }
}

void Services::ChDrive(const QString &drive) const
{
    if (drive.isEmpty()) {
        return;
    }
    if (!m_paths.changeDrive(drive)) {
        platform::raise(68); // Device unavailable
    }
}

QString Services::CurDir() const
{
    return m_paths.currentDir();
}

qint64 Services::FileLen(const QString &path) const
{
    const QFileInfo info(m_paths.toHost(path));
    if (!info.isFile()) {
        platform::raise(platform::FileNotFound);
    }
    return info.size();
}

QStringList Services::listFiles(const QString &folder, const QString &pattern) const
{
    QStringList names;
    const QDir dir(m_paths.toHost(folder));
    for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (platform::Wildcard::matches(pattern, name)) {
            names << name;
        }
    }
    return sortedCaseBlind(names);
}

QStringList Services::listFolders(const QString &folder) const
{
    const QDir dir(m_paths.toHost(folder));
    return sortedCaseBlind(dir.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot));
}

QStringList Services::ReadLines(const QString &path) const
{
    const QString text = platform::Cp1252::decode(ReadBinary(path));
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r') {
            continue;
        }
        lines << text.mid(start, i - start);
        if (i + 1 < text.size() && text[i + 1] == u'\n') {
            ++i;
        }
        start = i + 1;
    }
    if (start < text.size()) {
        lines << text.mid(start);
    }
    return lines;
}

void Services::WriteBinary(const QString &path, const QByteArray &bytes) const
{
    writeBytes(path, bytes);
}

QByteArray Services::ReadBinary(const QString &path) const
{
    QFile file(m_paths.toHost(path));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        platform::raise(platform::FileNotFound);
    }
    return file.readAll();
}

} // namespace core
