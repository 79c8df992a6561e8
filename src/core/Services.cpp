#include "core/Services.h"

#include "core/platform/Cp1252.h"
#include "core/platform/FileOps.h"
#include "core/platform/ProcessList.h"
#include "core/platform/Utf16Le.h"
#include "ui/Host.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace core
{

Services::Services(const platform::PathMap &paths, ui::Host &host, const QString &systemFolder)
    : m_paths(paths)
    , m_host(host)
    , m_runner(paths, systemFolder)
{
}

bool Services::FileExists(const QString &path) const
{
    if (path.isEmpty()) {
        return false;
    }
    const QString host = m_paths.toHost(path);
    QFile file(host);
    return QFileInfo(host).isFile() && file.open(QIODevice::ReadOnly);
}

bool Services::FolderExists(QString &path) const
{
    if (path.endsWith(u'\\')) {
        path.chop(1);
    }
    // The listing of path + "\nul": an empty path stands for the current drive's root.
    const QString probe = path.isEmpty() ? u"\\"_s : path;
    return QFileInfo(m_paths.toHost(probe)).isDir();
}

QString Services::ReadFile(const QString &path) const
{
    QString text;
    QFile file(m_paths.toHost(path));
    if (QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        text = path.right(3).compare(u"mkr", Qt::CaseInsensitive) == 0
            ? platform::Utf16Le::decode(bytes)
            : platform::Cp1252::decode(bytes);
    }
    m_host.yield();
    return text;
}

void Services::WriteFile(const QString &path, const QString &text) const
{
    const QString host = m_paths.toHost(path);
    platform::FileOps::writeReplacing(host, platform::Cp1252::encode(text));
    m_host.yield();
    if (QFileInfo(host).size() == 0) {
        m_host.msgBox(u"An error occurred while writing "_s + path,
                      ui::Buttons::OK,
                      ui::Icon::Exclamation,
                      m_host.appTitle());
    }
}

void Services::CopyFolder(const QString &source, const QString &destination, bool overwrite) const
{
    const QString from = m_paths.toHost(source);
    if (!QFileInfo(from).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    // A destination ending in a backslash is a folder to copy into; otherwise the copy's name.
    QString target = destination;
    if (target.endsWith(u'\\')) {
        target += QFileInfo(from).fileName();
    }
    const QString to = m_paths.toHost(target);
    if (!QDir().mkpath(to)) {
        platform::raise(platform::PathNotFound);
    }
    QDirIterator it(from,
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString item = it.next();
        const QString copy = to + item.mid(from.size());
        if (it.fileInfo().isDir()) {
            QDir().mkpath(copy);
            continue;
        }
        if (QFileInfo::exists(copy)) {
            if (!overwrite) {
                platform::raise(platform::FileAlreadyExists);
            }
            if (platform::FileOps::isReadOnly(copy)) {
                platform::raise(platform::PermissionDenied);
            }
        }
        if (!platform::FileOps::copyReplacing(item, copy)) {
            platform::raise(platform::PathFileAccess);
        }
    }
}

void Services::DelAll(const QString &folder) const
{
    if (folder.trimmed().isEmpty()) {
        return;
    }
    const QString host = m_paths.toHost(folder);
    const QFileInfo info(host);
    if (!info.isDir() || info.isSymLink() || QDir(host).isRoot()) {
        return;
    }
    // Forced: write-protected folders inside are opened up first.
    QDirIterator it(
        host, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        platform::FileOps::setReadOnly(it.next(), false);
    }
    QDir(host).removeRecursively();
}

qint64 Services::ShellAndWait(const QString &commandLine, bool yield, bool hidden) const
{
    Q_UNUSED(hidden); // children of this host have no window to hide
    std::function<void()> onYield;
    if (yield) {
        onYield = [this] {
            m_host.yield();
        };
    }
    return m_runner.runAndWait(commandLine, onYield).valueOr(0);
}

qint64 Services::StartDetached(const QString &commandLine) const
{
    return m_runner.startDetached(commandLine).valueOr(0);
}

void Services::KillProcess(const QString &imageName) const
{
    platform::ProcessList::killProcess(imageName);
}

QString Services::BrowseForFolder(const QString &title) const
{
    ui::FileDialogRequest request;
    request.kind = ui::FileDialogKind::Folder;
    request.title = title;
    QString folder = m_host.fileDialog(request);
    const qsizetype nul = folder.indexOf(QChar(u'\0'));
    return nul < 0 ? folder : folder.left(nul);
}

QVariant Services::GetRegValue(platform::RegistryRoot root,
                               const QString &subkey,
                               const QString &valueName,
                               const QVariant &defaultValue) const
{
    return platform::Registry().value(root, subkey, valueName, defaultValue).orRaise();
}

void Services::writeBytes(const QString &path, const QByteArray &bytes) const
{
    const QString host = m_paths.toHost(path);
    if (!QFileInfo(QFileInfo(host).absolutePath()).isDir()) {
        platform::raise(platform::PathNotFound);
    }
    if (QFileInfo(host).isDir() || platform::FileOps::isReadOnly(host)
        || !platform::FileOps::writeReplacing(host, bytes)) {
        platform::raise(platform::PathFileAccess);
    }
}

} // namespace core
