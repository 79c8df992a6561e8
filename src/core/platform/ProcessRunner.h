#pragma once
// Starts the command lines the program writes: finds the program (serz.exe first in the system
// folder), runs batch files with the built-in runner, Windows programs through wine, host programs
// directly with their path arguments mapped, and waits while yielding.

#include "core/platform/PathMap.h"
#include "core/platform/Result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace platform
{

// What a command line becomes on this host.
struct HostCommand {
    enum class Kind { Native, Wine, Batch };

    Kind kind = Kind::Native;
    QString program; // a host path (the batch file's Windows path for Batch)
    QStringList arguments;
    QString workingDir; // a host folder
};

class ProcessRunner
{
public:
    // systemFolder: the host folder of the workbench's executable, where the native serz.exe is.
    ProcessRunner(const PathMap &paths, QString systemFolder);

    [[nodiscard]] Result<HostCommand> resolve(const QString &commandLine) const;

    // Runs and waits for the end, calling onYield while the child runs; no time limit. The
    // process id (the program's own for a batch file, which runs inside it).
    [[nodiscard]] Result<qint64> runAndWait(const QString &commandLine,
                                            const std::function<void()> &onYield = {}) const;

    // Starts without waiting (the game, a viewer); the process id.
    [[nodiscard]] Result<qint64> startDetached(const QString &commandLine) const;

private:
    QString findProgram(const QString &name) const;

    const PathMap &m_paths;
    QString m_systemFolder;
};

} // namespace platform
