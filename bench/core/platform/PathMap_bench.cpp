// The cost of mapping a Windows path at each file-system call: a path that exists as written, one
// that needs case-blind matching, and one whose last components do not exist yet.

#include "core/platform/PathMap.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace
{

struct Tree {
    QTemporaryDir root;
    QString win;

    Tree()
    {
        QDir(root.path()).mkpath(u"Content/Routes/Route1/Scenarios/S1"_s);
        for (int i = 0; i < 200; ++i) {
            QDir(root.path()).mkpath(u"Content/Routes/Other%1"_s.arg(i));
        }
        QFile file(root.filePath(u"Content/Routes/Route1/Scenarios/S1/Scenario.bin"_s));
        (void)file.open(QIODevice::WriteOnly);
        win = platform::toWindowsPath(root.path());
        // A game's folders have long been still; fresh ones are read again at each lookup.
        QThread::msleep(2100);
    }
};

void mapEach(benchmark::State &state, const QString &rel)
{
    const Tree tree;
    const platform::PathMap map = platform::PathMap::forHostRoot();
    const QString path = tree.win + rel;
    for (auto _ : state) {
        benchmark::DoNotOptimize(map.toHost(path));
    }
}

} // namespace

static void BM_PathMap_ExactName(benchmark::State &state)
{
    mapEach(state, u"\\Content\\Routes\\Route1\\Scenarios\\S1\\Scenario.bin"_s);
}

BENCHMARK(BM_PathMap_ExactName)->Unit(benchmark::kMicrosecond);

static void BM_PathMap_CaseBlind(benchmark::State &state)
{
    mapEach(state, u"\\content\\routes\\route1\\scenarios\\s1\\scenario.BIN"_s);
}

BENCHMARK(BM_PathMap_CaseBlind)->Unit(benchmark::kMicrosecond);

static void BM_PathMap_NotYetThere(benchmark::State &state)
{
    mapEach(state, u"\\Content\\Routes\\Route1\\New\\Deeper\\x.xml"_s);
}

BENCHMARK(BM_PathMap_NotYetThere)->Unit(benchmark::kMicrosecond);
