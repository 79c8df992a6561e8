// The cost of running a command and waiting for it: a trivial host child through the runner
// (what ShellAndWait does), the same child spawned bare for comparison, and a small batch file.

#include "core/platform/PathMap.h"
#include "core/platform/ProcessRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

extern char **environ;

static void BM_ShellAndWait_TrueChild(benchmark::State &state)
{
    const platform::PathMap map = platform::PathMap::forHostRoot();
    const platform::ProcessRunner runner(map, QDir::tempPath());
    int yields = 0;
    for (auto _ : state) {
        const auto pid = runner.runAndWait(u"Z:\\bin\\true"_s, [&] { ++yields; });
        benchmark::DoNotOptimize(pid.ok());
    }
    benchmark::DoNotOptimize(yields);
}

BENCHMARK(BM_ShellAndWait_TrueChild)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

// The floor: spawning and reaping the same child with nothing around it.
static void BM_ShellAndWait_BareSpawn(benchmark::State &state)
{
    char program[] = "/bin/true";
    char *argv[] = {program, nullptr};
    for (auto _ : state) {
        pid_t pid = 0;
        posix_spawn(&pid, program, nullptr, nullptr, argv, environ);
        int status = 0;
        waitpid(pid, &status, 0);
        benchmark::DoNotOptimize(status);
    }
}

BENCHMARK(BM_ShellAndWait_BareSpawn)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

static void BM_ShellAndWait_BatchFile(benchmark::State &state)
{
    QTemporaryDir dir;
    QFile bat(dir.filePath(u"do_read.bat"_s));
    if (!bat.open(QIODevice::WriteOnly)) {
        state.SkipWithError("cannot write the batch file");
        return;
    }
    bat.write("@echo off\r\nrem nothing to copy\r\ncd .\r\n");
    bat.close();
    const platform::PathMap map = platform::PathMap::forHostRoot();
    map.changeDir(platform::toWindowsPath(dir.path()));
    const platform::ProcessRunner runner(map, dir.path());
    for (auto _ : state) {
        benchmark::DoNotOptimize(runner.runAndWait(u"do_read.bat"_s).ok());
    }
}

BENCHMARK(BM_ShellAndWait_BatchFile)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
