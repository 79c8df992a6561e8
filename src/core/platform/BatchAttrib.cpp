// The batch runner's attrib command: sets or clears write protection (the other attributes have
// no meaning on this host), on files and, with /D, on folders.

#include "core/platform/BatchLine.h"
#include "core/platform/BatchRunner.h"
#include "core/platform/BatchWalk.h"
#include "core/platform/FileOps.h"
#include "core/platform/Wildcard.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform
{

namespace
{

// The host paths attrib acts on: a folder named outright is itself one, and with /S everything
// below it; a pattern finds its matches, in every sub-folder with /S.
QStringList attribTargets(const PathMap &paths, const QString &path, bool recurse, bool folders)
{
    QStringList targets;
    const QString abs = paths.absolute(path);
    const QString host = paths.toHost(abs);
    const bool folderNamed = !Wildcard::hasWildcards(abs) && QFileInfo(host).isDir();
    if (folderNamed) {
        targets << host;
        if (!recurse) {
            return targets;
        }
    }
    Walk walk(folderNamed ? u"*"_s : lastComponent(abs), recurse, folders);
    walk.run(folderNamed ? host : paths.toHost(parentOf(abs)));
    for (const Found &f : std::as_const(walk.found)) {
        targets << f.host;
    }
    return targets;
}

} // namespace

int BatchRunner::attrib(const BatchLine &line)
{
    int readOnly = -1; // -1 unchanged, 0 clear, 1 set
    QString path = u"*.*"_s;
    for (const QString &argument : line.arguments) {
        const bool flag =
            (argument.startsWith(u'+') || argument.startsWith(u'-')) && argument.size() == 2;
        if (!flag) {
            path = argument;
        } else if (argument[1].toUpper() == u'R') {
            readOnly = argument[0] == u'+' ? 1 : 0;
        }
    }
    const QStringList targets = attribTargets(m_paths, path, line.has(u"S"_s), line.has(u"D"_s));
    if (targets.isEmpty()) {
        err(u"File not found - "_s + m_paths.absolute(path));
        return 1;
    }
    for (const QString &target : targets) {
        if (readOnly < 0) {
            const QString mark =
                FileOps::isReadOnly(target) ? u"     R       "_s : u"             "_s;
            out(mark + m_paths.toWindows(target));
        } else if (!FileOps::setReadOnly(target, readOnly == 1)) {
            err(u"Access denied - "_s + m_paths.toWindows(target));
        }
    }
    return 0;
}

} // namespace platform
