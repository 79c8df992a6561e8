#include "core/platform/ProcessList.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/types.h>
#endif

namespace platform
{

namespace
{

QByteArray readSmallFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.read(64 * 1024);
}

// The image name of a process: the base name of its first argument (a Windows program under wine
// shows as "C:\...\RailSim.exe"), else the kernel's short name.
QString imageNameOf(const QString &procDir)
{
    const QByteArray cmdline = readSmallFile(procDir + QStringLiteral("/cmdline"));
    const QString first = QString::fromLocal8Bit(cmdline.left(cmdline.indexOf('\0')));
    if (!first.isEmpty()) {
        const qsizetype cut = std::max(first.lastIndexOf(u'/'), first.lastIndexOf(u'\\'));
        const QString base = first.mid(cut + 1);
        if (!base.isEmpty()) {
            return base;
        }
    }
    return QString::fromLocal8Bit(readSmallFile(procDir + QStringLiteral("/comm"))).trimmed();
}

} // namespace

QList<ProcessEntry> ProcessList::snapshot()
{
    QList<ProcessEntry> entries;
#ifdef Q_OS_LINUX
    const QDir proc(QStringLiteral("/proc"));
    for (const QString &name : proc.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool numeric = false;
        const qint64 pid = name.toLongLong(&numeric);
        if (!numeric) {
            continue;
        }
        const QString image = imageNameOf(proc.filePath(name));
        if (!image.isEmpty()) {
            entries.append({pid, image});
        }
    }
#endif
    return entries;
}

bool ProcessList::tailMatches(const QString &imageName, const QString &name)
{
    const QString entry = imageName.toLower();
    return entry.right(name.size()) == name.toLower();
}

int ProcessList::killProcess(const QString &name)
{
    if (name.isEmpty()) {
        return 0;
    }
    int ended = 0;
    for (const ProcessEntry &entry : snapshot()) {
        if (!tailMatches(entry.imageName, name)) {
            continue;
        }
#ifdef Q_OS_UNIX
        if (::kill(static_cast<pid_t>(entry.pid), SIGKILL) == 0) {
            ++ended;
        }
#endif
    }
    return ended;
}

} // namespace platform
