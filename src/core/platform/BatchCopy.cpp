// The batch runner's copy commands, xcopy and copy, over mapped paths.

#include "core/platform/BatchLine.h"
#include "core/platform/BatchRunner.h"
#include "core/platform/BatchWalk.h"
#include "core/platform/FileOps.h"
#include "core/platform/Wildcard.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform
{

namespace
{

// Where copies go: into a folder, keeping their names, or onto one file.
struct Target {
    QString folder;
    QString file;
    bool asked = false; // xcopy would have asked whether a file or a folder is meant

    static Target intoFolder(const QString &folder, bool asked = false)
    {
        return {folder, {}, asked};
    }

    static Target ontoFile(const QString &file) { return {{}, file, false}; }

    QString of(const Found &f, bool keepSubFolders) const
    {
        if (!file.isEmpty()) {
            return file;
        }
        return joinWin(keepSubFolders ? joinWin(folder, f.rel) : folder, f.name);
    }
};

Target
xcopyTarget(const PathMap &paths, const BatchLine &line, const Source &source, qsizetype count)
{
    if (line.arguments.size() < 2) {
        return Target::intoFolder(paths.currentDir());
    }
    const QString &given = line.arguments[1];
    const QString abs = paths.absolute(given);
    const bool several = source.wasFolder || Wildcard::hasWildcards(source.pattern) || count > 1;
    if (Wildcard::hasWildcards(lastComponent(abs))) {
        return Target::intoFolder(parentOf(abs)); // "target\*.*": the files keep their names
    }
    if (given.endsWith(u'\\') || QFileInfo(paths.toHost(abs)).isDir()
        || (line.has(u"I"_s) && several)) {
        return Target::intoFolder(abs);
    }
    if (!several) {
        return Target::ontoFile(abs);
    }
    // Nobody answers the question in a hidden window; a folder is what the lines mean.
    return Target::intoFolder(abs, true);
}

// Copies one file for xcopy; the error text, or empty on success.
QString xcopyOne(const Found &f, const QString &host, const QString &target, const BatchLine &line)
{
    if (FileOps::isReadOnly(host) && !line.has(u"R"_s)) {
        return u"Access denied"_s;
    }
    QDir().mkpath(QFileInfo(host).absolutePath());
    if (!FileOps::copyReplacing(f.host, host)) {
        return u"File creation error - "_s + target;
    }
    // Copies lose the read-only mark unless asked to keep it.
    FileOps::setReadOnly(host, line.has(u"K"_s) && FileOps::isReadOnly(f.host));
    return {};
}

Target copyTarget(const PathMap &paths, const QString &given)
{
    const QString abs = given.isEmpty() ? paths.currentDir() : paths.absolute(given);
    if (Wildcard::hasWildcards(lastComponent(abs))) {
        return Target::intoFolder(parentOf(abs));
    }
    if (given.isEmpty() || given.endsWith(u'\\') || QFileInfo(paths.toHost(abs)).isDir()) {
        return Target::intoFolder(abs);
    }
    return Target::ontoFile(abs);
}

// The files of every source; rel holds the source folder, for the listing.
QList<Found> copySources(const PathMap &paths, const QStringList &sources, bool &wildcards)
{
    QList<Found> found;
    for (const QString &s : sources) {
        const Source source = Source::of(paths, s);
        wildcards = wildcards || source.wasFolder || Wildcard::hasWildcards(source.pattern);
        Walk walk(source.pattern);
        walk.run(paths.toHost(source.folder));
        for (Found &f : walk.found) {
            f.rel = source.folder;
            found << f;
        }
    }
    return found;
}

// Several sources and one target file: the target is their concatenation.
bool concatenate(const QList<Found> &found, const QString &host)
{
    QByteArray bytes;
    for (const Found &f : found) {
        QFile in(f.host);
        if (in.open(QIODevice::ReadOnly)) {
            bytes += in.readAll();
        }
    }
    return FileOps::writeReplacing(host, bytes);
}

enum class Outcome { Copied, Kept, Failed };

// Copies one file for copy; message holds the error text of a failure.
Outcome copyOne(const Found &f, const QString &host, const BatchLine &line, QString &message)
{
    if (QFileInfo(host).canonicalFilePath() == QFileInfo(f.host).canonicalFilePath()) {
        message = u"The file cannot be copied onto itself."_s;
        return Outcome::Failed;
    }
    if (QFileInfo::exists(host) && line.has(u"-Y"_s)) {
        return Outcome::Kept;
    }
    if (FileOps::isReadOnly(host) || !FileOps::copyReplacing(f.host, host)) {
        message = u"Access is denied."_s;
        return Outcome::Failed;
    }
    return Outcome::Copied;
}

QString copiedCount(int count)
{
    return u"        %1 file(s) copied."_s.arg(count);
}

} // namespace

int BatchRunner::xcopy(const BatchLine &line)
{
    if (line.arguments.isEmpty()) {
        err(u"Invalid number of parameters"_s);
        return 4;
    }
    const Source source = Source::of(m_paths, line.arguments[0]);
    Walk walk(source.pattern, line.has(u"S"_s) || line.has(u"E"_s));
    walk.run(m_paths.toHost(source.folder));
    const Target target = xcopyTarget(m_paths, line, source, walk.found.size());
    if (target.asked) {
        out(u"Does "_s + line.arguments[1]
            + u" specify a file name\r\nor directory name on the target\r\n(F = file, D = directory)? D"_s);
    }
    for (const QString &rel : std::as_const(walk.folders)) {
        if (line.has(u"E"_s) && !target.folder.isEmpty()) {
            QDir().mkpath(m_paths.toHost(joinWin(target.folder, rel)));
        }
    }
    int copied = 0;
    int level = walk.found.isEmpty() ? 1 : 0;
    if (walk.found.isEmpty()) {
        err(u"File not found - "_s + source.pattern);
    }
    for (const Found &f : std::as_const(walk.found)) {
        const QString to = target.of(f, true);
        const QString host = m_paths.toHost(to);
        if (QFileInfo::exists(host) && line.has(u"-Y"_s)) {
            out(u"Overwrite "_s + to + u" (Yes/No/All)? N"_s);
            continue;
        }
        const QString failure = xcopyOne(f, host, to, line);
        if (!failure.isEmpty()) {
            err(failure);
            level = 4;
            if (!line.has(u"C"_s)) {
                break;
            }
            continue;
        }
        if (!line.has(u"Q"_s)) {
            out(joinWin(joinWin(source.folder, f.rel), f.name));
        }
        ++copied;
    }
    out(u"%1 File(s) copied"_s.arg(copied));
    return level;
}

int BatchRunner::copy(const BatchLine &line)
{
    QStringList sources;
    for (const QString &argument : line.arguments) {
        sources << argument.split(u'+', Qt::SkipEmptyParts);
    }
    if (sources.isEmpty()) {
        err(u"The syntax of the command is incorrect."_s);
        return 1;
    }
    const QString given = sources.size() > 1 ? sources.takeLast() : QString();
    bool wildcards = false;
    const QList<Found> found = copySources(m_paths, sources, wildcards);
    const Target target = copyTarget(m_paths, given);
    const QString folder = target.folder.isEmpty() ? parentOf(target.file) : target.folder;
    // copy makes no folders.
    const bool noFolder = !QFileInfo(m_paths.toHost(folder)).isDir();
    if (found.isEmpty() || noFolder) {
        err(found.isEmpty() ? u"The system cannot find the file specified."_s
                            : u"The system cannot find the path specified."_s);
        out(copiedCount(0));
        return 1;
    }
    if (!target.file.isEmpty() && found.size() > 1) {
        for (const Found &f : found) {
            out(joinWin(f.rel, f.name));
        }
        const bool ok = concatenate(found, m_paths.toHost(target.file));
        out(copiedCount(ok ? 1 : 0));
        return ok ? 0 : 1;
    }
    int copied = 0;
    int level = 0;
    for (const Found &f : found) {
        const QString to = target.of(f, false);
        QString message;
        switch (copyOne(f, m_paths.toHost(to), line, message)) {
        case Outcome::Copied:
            if (wildcards) {
                out(joinWin(f.rel, f.name));
            }
            ++copied;
            break;
        case Outcome::Kept:
            out(u"Overwrite "_s + to + u"? (Yes/No/All): N"_s);
            break;
        case Outcome::Failed:
            err(message);
            level = 1;
            break;
        }
    }
    out(copiedCount(copied));
    return level;
}

} // namespace platform
