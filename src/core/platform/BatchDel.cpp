// The batch runner's del command: files by name or pattern, never folders.

#include "core/platform/BatchLine.h"
#include "core/platform/BatchRunner.h"
#include "core/platform/BatchWalk.h"
#include "core/platform/FileOps.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace platform
{

int BatchRunner::del(const BatchLine &line)
{
    if (line.arguments.isEmpty()) {
        err(u"The syntax of the command is incorrect."_s);
        return 1;
    }
    int level = 0;
    for (const QString &argument : line.arguments) {
        const Source source = Source::of(m_paths, argument);
        if (source.wasFolder && !line.has(u"Q"_s)) {
            // Nobody answers in a hidden window; the program's lines mean to delete.
            out(joinWin(source.folder, u"*"_s) + u", Are you sure (Y/N)? Y"_s);
        }
        Walk walk(source.pattern, line.has(u"S"_s));
        walk.run(m_paths.toHost(source.folder));
        if (walk.found.isEmpty()) {
            err(u"Could Not Find "_s + joinWin(source.folder, source.pattern));
            level = 1;
        }
        for (const Found &f : std::as_const(walk.found)) {
            const QString win = joinWin(joinWin(source.folder, f.rel), f.name);
            if ((FileOps::isReadOnly(f.host) && !line.has(u"F"_s)) || !QFile::remove(f.host)) {
                err(win + u"\r\nAccess is denied."_s);
                level = 1;
            } else if (line.has(u"S"_s)) {
                out(u"Deleted file - "_s + win);
            }
        }
    }
    return level;
}

} // namespace platform
