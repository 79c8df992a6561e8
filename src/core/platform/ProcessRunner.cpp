#include "core/platform/ProcessRunner.h"

#include "core/platform/BatchRunner.h"
#include "core/platform/CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform
{

namespace
{

// How often the wait hands control to the host; the wait itself ends as soon as the child does.
constexpr int YieldSliceMs = 10;

bool endsWithAny(const QString &name, std::initializer_list<const char16_t *> suffixes)
{
    for (const char16_t *suffix : suffixes) {
        if (name.endsWith(QStringView(suffix), Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

bool isBatch(const QString &name)
{
    return endsWithAny(name, {u".bat", u".cmd"});
}

// A Windows program starts with "MZ"; the native serz.exe and host programs do not.
bool isWindowsProgram(const QString &hostPath)
{
    QFile file(hostPath);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "MZ";
}

bool isBareName(const QString &name)
{
    return !name.contains(u'\\') && !name.contains(u'/') && !name.contains(u':');
}

QString existingFile(const QString &hostPath)
{
    return QFileInfo(hostPath).isFile() ? hostPath : QString();
}

// The name as given, then with the extensions the system tries when none is given.
QStringList candidates(const QString &name)
{
    QStringList names{name};
    if (!QFileInfo(name).fileName().contains(u'.')) {
        names << name + u".exe"_s << name + u".bat"_s << name + u".cmd"_s;
    }
    return names;
}

// A Windows absolute path, optionally behind one of the converter's prefixes.
const QRegularExpression &pathArgument()
{
    static const QRegularExpression re(u"^(/?(?:xml|bin):)?([A-Za-z]:[\\\\/].*)$"_s,
                                       QRegularExpression::CaseInsensitiveOption);
    return re;
}

} // namespace

ProcessRunner::ProcessRunner(const PathMap &paths, QString systemFolder)
    : m_paths(paths)
    , m_systemFolder(std::move(systemFolder))
{
}

QString ProcessRunner::findProgram(const QString &name) const
{
    if (!isBareName(name)) {
        for (const QString &candidate : candidates(name)) {
            const QString found = existingFile(m_paths.toHost(candidate));
            if (!found.isEmpty()) {
                return found;
            }
        }
        return {};
    }
    // The native converter beside the workbench stands in for the game's.
    if (name.compare(u"serz.exe", Qt::CaseInsensitive) == 0
        || name.compare(u"serz", Qt::CaseInsensitive) == 0) {
        const QString native = existingFile(QDir(m_systemFolder).filePath(u"serz.exe"_s));
        if (!native.isEmpty()) {
            return native;
        }
    }
    for (const QString &candidate : candidates(name)) {
        const QString here = existingFile(m_paths.toHost(candidate));
        if (!here.isEmpty()) {
            return here;
        }
    }
    for (const QString &candidate : candidates(name)) {
        const QString onPath = QStandardPaths::findExecutable(candidate);
        if (!onPath.isEmpty()) {
            return onPath;
        }
    }
    return {};
}

Result<HostCommand> ProcessRunner::resolve(const QString &commandLine) const
{
    const QStringList words = CommandLine::split(commandLine);
    if (words.isEmpty() || words[0].isEmpty()) {
        return Error{InvalidArgument, standardDescription(InvalidArgument)};
    }
    const QString &name = words[0];
    const QString program = findProgram(name);
    if (program.isEmpty()) {
        return Error{FileNotFound, u"File not found: "_s + name};
    }
    HostCommand command;
    command.workingDir = m_paths.toHost(m_paths.currentDir());
    const QStringList arguments = words.mid(1);
    if (isBatch(program)) {
        command.kind = HostCommand::Kind::Batch;
        command.program = m_paths.toWindows(program);
        command.arguments = arguments;
        return command;
    }
#ifndef Q_OS_WIN
    if (isWindowsProgram(program)) {
        const QString wine = QStandardPaths::findExecutable(u"wine"_s);
        if (wine.isEmpty()) {
            return Error{FileNotFound,
                         u"wine is needed to run "_s + name + u"; install the wine package"_s};
        }
        command.kind = HostCommand::Kind::Wine;
        command.program = wine;
        command.arguments = QStringList{program} + arguments;
        return command;
    }
#endif
    command.kind = HostCommand::Kind::Native;
    command.program = program;
    for (const QString &argument : arguments) {
        const QRegularExpressionMatch m = pathArgument().match(argument);
        command.arguments << (m.hasMatch() ? m.captured(1) + m_paths.toHost(m.captured(2))
                                           : argument);
    }
    return command;
}

Result<qint64> ProcessRunner::runAndWait(const QString &commandLine,
                                         const std::function<void()> &onYield) const
{
    Result<HostCommand> resolved = resolve(commandLine);
    if (!resolved) {
        return resolved.error();
    }
    const HostCommand command = std::move(resolved).value();
    if (command.kind == HostCommand::Kind::Batch) {
        BatchRunner batch(m_paths);
        batch.run(command.program, onYield);
        return QCoreApplication::applicationPid();
    }
    QProcess process;
    process.setProgram(command.program);
    process.setArguments(command.arguments);
    process.setWorkingDirectory(command.workingDir);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start();
    if (!process.waitForStarted(-1)) {
        return Error{FileNotFound, process.errorString()};
    }
    const qint64 pid = process.processId();
    while (!process.waitForFinished(YieldSliceMs)) {
        if (process.state() == QProcess::NotRunning) {
            break;
        }
        if (onYield) {
            onYield();
        }
    }
    return pid;
}

Result<qint64> ProcessRunner::startDetached(const QString &commandLine) const
{
    Result<HostCommand> resolved = resolve(commandLine);
    if (!resolved) {
        return resolved.error();
    }
    const HostCommand command = std::move(resolved).value();
    if (command.kind == HostCommand::Kind::Batch) {
        BatchRunner batch(m_paths);
        batch.run(command.program);
        return QCoreApplication::applicationPid();
    }
    qint64 pid = 0;
    if (!QProcess::startDetached(command.program, command.arguments, command.workingDir, &pid)) {
        return Error{FileNotFound, u"File not found: "_s + command.program};
    }
    return pid;
}

} // namespace platform
