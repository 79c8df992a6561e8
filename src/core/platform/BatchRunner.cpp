#include "core/platform/BatchRunner.h"

#include "core/platform/BatchLine.h"
#include "core/platform/Cp1252.h"
#include "core/platform/FileOps.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace platform
{

namespace
{

constexpr int MaxCallDepth = 16;

bool isDriveChange(const QString &verb, const BatchLine &line)
{
    return verb.size() == 2 && verb[1] == u':' && verb[0].isLetter()
        && line.rest.trimmed().isEmpty();
}

QStringList splitLines(const QString &text)
{
    QString unified = text;
    unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    unified.replace(u'\r', u'\n');
    return unified.split(u'\n');
}

} // namespace

BatchRunner::BatchRunner(PathMap paths, Streams streams)
    : m_paths(std::move(paths))
    , m_streams(std::move(streams))
{
}

void BatchRunner::out(const QString &text)
{
    if (m_capture) {
        *m_capture += text + QStringLiteral("\r\n");
    } else if (m_streams.out) {
        m_streams.out(text);
    } else {
        std::fputs(qPrintable(text + u'\n'), stdout);
    }
}

void BatchRunner::err(const QString &text) const
{
    if (m_streams.err) {
        m_streams.err(text);
    } else {
        std::fputs(qPrintable(text + u'\n'), stderr);
    }
}

int BatchRunner::run(const QString &batchWinPath, const std::function<void()> &onLine)
{
    m_onLine = onLine;
    m_exit = false;
    m_level = 0;
    return runFile(batchWinPath);
}

int BatchRunner::runFile(const QString &batchWinPath)
{
    QFile file(m_paths.toHost(batchWinPath));
    if (!file.open(QIODevice::ReadOnly)) {
        err(QStringLiteral("The system cannot find the file specified."));
        return 1;
    }
    // The whole file is read first, so a batch file may delete itself.
    const QStringList lines = splitLines(Cp1252::decode(file.readAll()));
    file.close();
    for (const QString &text : lines) {
        if (m_exit) {
            break;
        }
        runLine(text);
        if (m_onLine) {
            m_onLine();
        }
    }
    return m_level;
}

int BatchRunner::runLine(const QString &text)
{
    QString command = text.trimmed();
    bool quiet = false;
    while (command.startsWith(u'@')) {
        quiet = true;
        command = command.mid(1).trimmed();
    }
    if (command.isEmpty() || command.startsWith(u':')) {
        return m_level;
    }
    if (m_echo && !quiet) {
        out(m_paths.currentDir() + u'>' + command);
    }
    const BatchLine line = BatchLine::parse(command);
    if (line.redirectTo.isEmpty()) {
        m_level = runCommand(line);
        return m_level;
    }
    QString captured;
    m_capture = &captured;
    m_level = runCommand(line);
    m_capture = nullptr;
    if (line.redirectTo.compare(u"nul", Qt::CaseInsensitive) != 0) {
        const QString host = m_paths.toHost(line.redirectTo);
        QByteArray bytes;
        if (line.append) {
            QFile old(host);
            if (old.open(QIODevice::ReadOnly)) {
                bytes = old.readAll();
            }
        }
        if (!FileOps::writeReplacing(host, bytes + Cp1252::encode(captured))) {
            err(QStringLiteral("The system cannot find the path specified."));
            m_level = 1;
        }
    }
    return m_level;
}

int BatchRunner::runCommand(const BatchLine &line)
{
    const QString verb = line.verb.toLower();
    if (isDriveChange(verb, line)) {
        if (!m_paths.changeDrive(verb)) {
            err(QStringLiteral("The system cannot find the drive specified."));
            return 1;
        }
        return 0;
    }
    if (verb == u"rem" || verb == u"::" || verb == u"cls" || verb == u"title") {
        return 0;
    }
    if (verb == u"echo") {
        return echo(line);
    }
    if (verb == u"call") {
        return call(line);
    }
    if (verb == u"cd" || verb == u"chdir") {
        return cd(line);
    }
    if (verb == u"md" || verb == u"mkdir") {
        return mkdir(line);
    }
    if (verb == u"xcopy" || verb == u"xcopy.exe") {
        return xcopy(line);
    }
    if (verb == u"copy") {
        return copy(line);
    }
    if (verb == u"del" || verb == u"erase") {
        return del(line);
    }
    if (verb == u"attrib" || verb == u"attrib.exe") {
        return attrib(line);
    }
    if (verb == u"exit") {
        m_exit = true;
        return 0;
    }
    if (verb == u"pause") {
        out(QStringLiteral("Press any key to continue . . . "));
        return 0;
    }
    err(u'\'' + line.verb
        + QStringLiteral("' is not recognized as an internal or external command, operable "
                         "program or batch file."));
    return 9009;
}

int BatchRunner::echo(const BatchLine &line)
{
    const QString rest = line.rest;
    const QString word = rest.trimmed();
    if (word.compare(u"off", Qt::CaseInsensitive) == 0) {
        m_echo = false;
    } else if (word.compare(u"on", Qt::CaseInsensitive) == 0) {
        m_echo = true;
    } else if (rest.isEmpty() || (word.isEmpty() && !rest.startsWith(u'.'))) {
        out(m_echo ? QStringLiteral("ECHO is on.") : QStringLiteral("ECHO is off."));
    } else {
        // The character right after "echo" (a blank or a dot) only separates.
        out(rest.mid(1));
    }
    return 0;
}

int BatchRunner::call(const BatchLine &line)
{
    const QString target = line.rest.trimmed();
    const BatchLine inner = BatchLine::parse(target);
    QString file = inner.verb;
    const bool batch = file.endsWith(u".bat", Qt::CaseInsensitive)
        || file.endsWith(u".cmd", Qt::CaseInsensitive)
        || QFileInfo(m_paths.toHost(file + QStringLiteral(".bat"))).isFile();
    if (!batch) {
        return runCommand(inner);
    }
    if (!file.contains(u'.')) {
        file += QStringLiteral(".bat");
    }
    if (m_depth >= MaxCallDepth) {
        err(QStringLiteral("The batch call nesting is too deep."));
        return 1;
    }
    ++m_depth;
    const int level = runFile(file);
    --m_depth;
    return level;
}

int BatchRunner::cd(const BatchLine &line)
{
    PathMap::DriveChange mode = PathMap::DriveChange::Keep;
    // cd takes the rest of the line as one path, blanks and all.
    QString path = line.rest.trimmed();
    if (path.startsWith(QStringLiteral("/d"), Qt::CaseInsensitive)) {
        mode = PathMap::DriveChange::Switch;
        path = path.mid(2).trimmed();
    }
    path.remove(u'"');
    if (path.isEmpty()) {
        out(m_paths.currentDir());
        return 0;
    }
    if (path.size() == 2 && path[1] == u':') {
        out(m_paths.currentDirOf(path[0]));
        return 0;
    }
    if (!m_paths.changeDir(path, mode)) {
        err(QStringLiteral("The system cannot find the path specified."));
        return 1;
    }
    return 0;
}

int BatchRunner::mkdir(const BatchLine &line)
{
    int level = 0;
    for (const QString &name : line.arguments) {
        const QString host = m_paths.toHost(name);
        if (QFileInfo::exists(host)) {
            err(QStringLiteral("A subdirectory or file ") + name
                + QStringLiteral(" already exists."));
            level = 1;
        } else if (!QDir().mkpath(host)) {
            err(QStringLiteral("Access is denied."));
            level = 1;
        }
    }
    return level;
}

} // namespace platform
