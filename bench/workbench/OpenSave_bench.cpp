// Open and save of a 10 MB scenario binary through the main window's text road: copy, convert to
// XML, load, save, convert back, back up, copy over.

#include "core/platform/PathMap.h"
#include "ui/ScriptedHost.h"
#include "workbench/Workbench.h"
#include "workbench/frmEditor.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace
{

const QString serz = QStringLiteral(BV_BIN_DIR) + u"/serz.exe"_s;

// A scenario of about 10 MB: a real one with the children of its root repeated.
bool makeLargeScenario(const QString &folder, const QString &target)
{
    const QString sample =
        QStringLiteral(BV_SAMPLES_DIR) + u"/serz/PilsenSpotter+obsluha_brniste/Scenario.bin"_s;
    const QString xmlPath = folder + u"/sample.xml"_s;
    if (QProcess::execute(serz, {sample, u"xml:"_s + xmlPath}) != 0) {
        return false;
    }
    QFile xmlFile(xmlPath);
    if (!xmlFile.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray xml = xmlFile.readAll();
    const qsizetype bodyStart = xml.indexOf('\n', xml.indexOf("<cRecordSet")) + 1;
    const qsizetype bodyEnd = xml.lastIndexOf("</cRecordSet>");
    QByteArray large = xml.left(bodyStart);
    while (large.size() < 72 * 1024 * 1024) {
        large += xml.mid(bodyStart, bodyEnd - bodyStart);
    }
    large += xml.mid(bodyEnd);
    QFile out(folder + u"/large.xml"_s);
    if (!out.open(QIODevice::WriteOnly)) {
        return false;
    }
    out.write(large);
    out.close();
    return QProcess::execute(serz, {folder + u"/large.xml"_s, u"bin:"_s + target}) == 0;
}

void BM_Workbench_OpenSaveScenario10MB(benchmark::State &state)
{
    QTemporaryDir root;
    QDir(root.path()).mkpath(u"app"_s);
    QDir(root.path()).mkpath(u"game"_s);
    const QString target = root.path() + u"/game/Scenario.bin"_s;
    if (!makeLargeScenario(root.path(), target)) {
        state.SkipWithError("no sample scenario or converter");
        return;
    }
    state.counters["binary_MB"] = double(QFile(target).size()) / 1e6;
    ui::ScriptedHost host;
    workbench::Workbench bench(
        host, workbench::Folders{root.path() + u"/app"_s, QStringLiteral(BV_BIN_DIR)}, {});
    host.queueFile(QString()); // no game on this machine: the start-up picker is cancelled
    workbench::frmEditor &editor = bench.start();
    for (auto _ : state) {
        host.queueFile(platform::toWindowsPath(target));
        editor.mnuOpenRS_Click();
        editor.mnuSaveRS_Click();
        state.PauseTiming();
        for (const QString &name : QDir(root.path() + u"/game"_s).entryList({u"*.bak*"_s})) {
            QFile::remove(root.path() + u"/game/"_s + name);
        }
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(BM_Workbench_OpenSaveScenario10MB)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char **argv)
{
    // A scripted host needs no screen; the services only need an event loop-free Qt core.
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
