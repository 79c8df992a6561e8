// The cost of walking a route's tiles: the whole walk over 2 000 tiles, and its parts for one
// tile (starting the converter, converting, reading the XML for references).

#include "core/ConverterBridge.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "routes/RouteWalk.h"
#include "routes/content_model/TagScan.h"
#include "ui/FileList.h"
#include "ui/ListBox.h"
#include "ui/ScriptedHost.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace
{

constexpr int TileCount = 2000;
constexpr int RefsPerTile = 100;

QString tileXml()
{
    QString xml = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<cRecordSet "
        "xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\">\r\n\t<Record>\r\n");
    for (int ref = 0; ref < RefsPerTile; ++ref) {
        xml +=
            QStringLiteral(
                "\t\t<cDynamicEntity>\r\n"
                "\t\t\t<Height d:type=\"sFloat32\" d:alt_encoding=\"0000000094061C40\" "
                "d:precision=\"string\">7.00642</Height>\r\n"
                "\t\t\t<BlueprintID>\r\n\t\t\t\t<iBlueprintLibrary-cAbsoluteBlueprintID>\r\n"
                "\t\t\t\t\t<BlueprintSetID>\r\n\t\t\t\t\t\t<iBlueprintLibrary-cBlueprintSetID>\r\n"
                "\t\t\t\t\t\t\t<Provider d:type=\"cDeltaString\">Bench</Provider>\r\n"
                "\t\t\t\t\t\t\t<Product d:type=\"cDeltaString\">Scenery</Product>\r\n"
                "\t\t\t\t\t\t</iBlueprintLibrary-cBlueprintSetID>\r\n\t\t\t\t\t</"
                "BlueprintSetID>\r\n"
                "\t\t\t\t\t<BlueprintID d:type=\"cDeltaString\">Trees\\tree%1.xml</BlueprintID>\r\n"
                "\t\t\t\t</iBlueprintLibrary-cAbsoluteBlueprintID>\r\n\t\t\t</BlueprintID>\r\n"
                "\t\t</cDynamicEntity>\r\n")
                .arg(ref % 10);
    }
    return xml + QStringLiteral("\t</Record>\r\n</cRecordSet>\r\n");
}

// A game folder with one route of TileCount identical scenery tiles and the ten trees they place.
class BenchRoute
{
public:
    BenchRoute()
    {
        QDir game(m_root.path());
        game.mkpath(QStringLiteral("game/Content/Routes/r/Scenery"));
        game.mkpath(QStringLiteral("game/Assets/Bench/Scenery/Trees"));
        game.mkpath(QStringLiteral("app/TempFiles"));
        for (int tree = 0; tree < 10; ++tree) {
            QFile(host(QStringLiteral("game/Assets/Bench/Scenery/Trees/tree%1.bin").arg(tree)))
                .open(QIODevice::WriteOnly);
        }
        const QString xml = host(QStringLiteral("tile.xml"));
        QFile source(xml);
        source.open(QIODevice::WriteOnly);
        source.write(tileXml().toUtf8());
        source.close();
        QProcess::execute(QStringLiteral(BV_BIN_DIR "/serz.exe"),
                          {xml, QStringLiteral("bin:") + host(QStringLiteral("tile.bin"))});
        for (int tile = 0; tile < TileCount; ++tile) {
            QFile::copy(host(QStringLiteral("tile.bin")),
                        host(QStringLiteral("game/Content/Routes/r/Scenery/+%1+000000.bin")
                                 .arg(tile, 6, 10, QLatin1Char('0'))));
        }
        session.appFolder = win(QStringLiteral("app"));
        session.RailSimPath = win(QStringLiteral("game"));
    }

    QString host(const QString &rel) const { return m_root.path() + QLatin1Char('/') + rel; }

    QString win(const QString &rel) const { return platform::toWindowsPath(host(rel)); }

private:
    QTemporaryDir m_root;

public:
    platform::PathMap paths = platform::PathMap::forHostRoot();
    ui::ScriptedHost scripted;
    core::Services services{paths, scripted, QStringLiteral(BV_BIN_DIR)};
    core::Session session{services, scripted, paths};
};

BenchRoute &benchRoute()
{
    static BenchRoute route;
    return route;
}

void BM_RouteCheck_Walk2000Tiles(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    double seconds = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        ui::FileList files;
        files.setPattern(QStringLiteral("*.bin"));
        ui::ListBox report;
        routes::RouteWalk walk(route.session, files);
        walk.ListBlueprintRefs(route.win(QStringLiteral("game/Content/Routes/r/Scenery")),
                               QStringLiteral("(Scenery Item)"),
                               report);
        if (walk.shapeCount != TileCount * RefsPerTile) {
            state.SkipWithError("the walk did not read every tile");
        }
        seconds += double(timer.nsecsElapsed()) / 1e9;
    }
    state.counters["ms_per_tile"] =
        seconds * 1000.0 / double(TileCount) / double(state.iterations());
}

BENCHMARK(BM_RouteCheck_Walk2000Tiles)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

// Starting the converter alone: it ends at once for want of arguments.
void BM_RouteCheck_ProcessStart(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    for (auto _ : state) {
        route.services.ShellAndWait(QStringLiteral("serz.exe"));
    }
}

BENCHMARK(BM_RouteCheck_ProcessStart)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_RouteCheck_ConvertOneTile(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    const core::ConverterBridge bridge(route.session);
    for (auto _ : state) {
        bridge.toXml(route.win(QStringLiteral("tile.bin")),
                     route.win(QStringLiteral("app/TempFiles/tile.xml")));
    }
}

BENCHMARK(BM_RouteCheck_ConvertOneTile)->Unit(benchmark::kMillisecond)->UseRealTime();

// Reading one converted tile for its references, as the walk does, without the converter.
void BM_RouteCheck_ScanOneTile(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    const QString xml = route.win(QStringLiteral("tile.xml"));
    for (auto _ : state) {
        const QStringList lines = route.services.ReadLines(xml);
        int found = 0;
        for (int line = 0; line + 4 < lines.size(); ++line) {
            if (lines[line].contains(QStringLiteral("<Provider"), Qt::CaseInsensitive)) {
                const QString path = routes::ScanValue(lines[line + 4]);
                found +=
                    route.services.FileExists(route.session.RailSimPath
                                              + QStringLiteral("\\Assets\\Bench\\Scenery\\")
                                              + path.left(path.size() - 3) + QStringLiteral("bin"))
                    ? 1
                    : 0;
            }
        }
        benchmark::DoNotOptimize(found);
    }
}

BENCHMARK(BM_RouteCheck_ScanOneTile)->Unit(benchmark::kMillisecond)->UseRealTime();

// The parts of the scan: reading the lines, and testing a blueprint's file.
void BM_RouteCheck_ReadTileLines(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    const QString xml = route.win(QStringLiteral("tile.xml"));
    for (auto _ : state) {
        benchmark::DoNotOptimize(route.services.ReadLines(xml));
    }
}

BENCHMARK(BM_RouteCheck_ReadTileLines)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_RouteCheck_FileExists(benchmark::State &state)
{
    BenchRoute &route = benchRoute();
    const QString tree =
        route.session.RailSimPath + QStringLiteral("\\Assets\\Bench\\Scenery\\Trees\\tree1.bin");
    for (auto _ : state) {
        benchmark::DoNotOptimize(route.services.FileExists(tree));
    }
}

BENCHMARK(BM_RouteCheck_FileExists)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
