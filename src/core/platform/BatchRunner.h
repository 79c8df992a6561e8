#pragma once
// Runs the batch files the program writes (echo, rem, call, xcopy, copy, del, attrib, cd, md and
// drive changes) with Windows semantics over mapped paths, inside this process.

#include "core/platform/PathMap.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace platform
{

struct BatchLine;

class BatchRunner
{
public:
    // Where the commands' output goes; an empty function means the program's own stdout/stderr.
    struct Streams {
        std::function<void(const QString &)> out;
        std::function<void(const QString &)> err;
    };

    // The runner works on its own copy of the map: "cd" in a batch file does not move the
    // program's current folder, as a child shell's would not.
    explicit BatchRunner(PathMap paths, Streams streams = {});

    // Runs a batch file given by its Windows path; onLine is called between lines (to yield).
    // The result is the last command's error level, 1 when the file cannot be read.
    int run(const QString &batchWinPath, const std::function<void()> &onLine = {});

    // Runs one line as the runner would from a file; the error level after it (blank lines and
    // labels leave it as it was).
    int runLine(const QString &text);

    const PathMap &paths() const { return m_paths; }

private:
    void out(const QString &text);
    void err(const QString &text) const;
    int runFile(const QString &batchWinPath);
    int runCommand(const BatchLine &line);
    int echo(const BatchLine &line);
    int call(const BatchLine &line);
    int cd(const BatchLine &line);
    int mkdir(const BatchLine &line);
    int xcopy(const BatchLine &line);
    int copy(const BatchLine &line);
    int del(const BatchLine &line);
    int attrib(const BatchLine &line);

    PathMap m_paths;
    Streams m_streams;
    std::function<void()> m_onLine;
    int m_level = 0; // the error level of the last command run
    bool m_echo = true;
    bool m_exit = false;
    int m_depth = 0;
    QString *m_capture = nullptr; // the output of a redirected command
};

} // namespace platform
