#include "Installation.h"
#include "authoring/AuthoringWindows.h"
#include "authoring/frmReport.h"
#include "routes/RoutesWindows.h"
#include "routes/frmDelRoute.h"

#include <QDir>
#include <QDirIterator>

#include <gtest/gtest.h>

using routes::frmDelRoute;
using routes::testing::BlueprintRef;
using routes::testing::Installation;

namespace
{

const QString route = QStringLiteral("Content/Routes/r-1/");
const BlueprintRef ghost{
    QStringLiteral("Sample"), QStringLiteral("Scenery"), QStringLiteral("ghost.xml")};
const BlueprintRef lane{
    QStringLiteral("Sample"), QStringLiteral("Roads"), QStringLiteral("lane.xml")};

bool shown(const QStringList &transcript, const QString &caption)
{
    return transcript.contains(QStringLiteral("showmodal frmReport \"") + caption
                               + QLatin1Char('"'));
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(it.next());
    }
    files.sort();
    return files;
}

class RouteCheck : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!install.converterFound()) {
            GTEST_SKIP() << "serz.exe not built";
        }
        install.defineWindows();
        install.addRoute(QStringLiteral("r-1"), QStringLiteral("Branch"), {});
        oak = install.addShape(QStringLiteral("Sample/Scenery/oak"),
                               {QStringLiteral("[00]oak_leaves")});
    }

    void tile(const QString &rel, const QList<BlueprintRef> &refs)
    {
        install.writeBinary(route + rel, Installation::tileXml(refs));
    }

    QString full(const BlueprintRef &ref) const
    {
        return install.win(
            QStringLiteral("Assets/") + ref.provider + QLatin1Char('/') + ref.product
            + QLatin1Char('/')
            + QString(ref.path).replace(QStringLiteral(".xml"), QStringLiteral(".bin")));
    }

    // Opens the window, picks the route and runs the check with the queued answers.
    frmDelRoute &check(std::initializer_list<ui::Answer> answers)
    {
        for (const ui::Answer answer : answers) {
            install.scripted.queueAnswer(answer);
        }
        frmDelRoute &window = install.forms.get<frmDelRoute>();
        window.List1.setSelected(0, true);
        window.Command4.fireClick();
        return window;
    }

    QStringList reportRows() { return install.forms.get<authoring::frmReport>().List1.rows(); }

    Installation install;
    BlueprintRef oak;
};

} // namespace

TEST_F(RouteCheck, MissingShapesAreReportedOncePerReferenceWithTheirLabel)
{
    const BlueprintRef parcels = install.addShape(QStringLiteral("Sample/Scenery/goods&parcels"),
                                                  {QStringLiteral("[00]brick")});
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {oak, ghost, parcels, ghost});
    tile(QStringLiteral("Networks/Road Tiles/+000000+000000.bin"), {lane});
    check({ui::Answer::No, ui::Answer::No});
    const QString scenery = full(ghost) + QStringLiteral("   (Scenery Item)");
    EXPECT_EQ(reportRows(),
              QStringList({scenery, scenery, full(lane) + QStringLiteral("   (Road Item)")}));
    EXPECT_TRUE(shown(install.scripted.transcript(),
                      QStringLiteral("Following item(s) were missing from this route:-")));
    EXPECT_EQ(install.session().ReportText, QStringLiteral("Route Scenery checked out OK"));
}

TEST_F(RouteCheck, TheShapeStoredLastFallsOutOfTheUsedList)
{
    const BlueprintRef track =
        install.addShape(QStringLiteral("Sample/Track/bullhead"), {QStringLiteral("[00]rail")});
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {oak, oak});
    tile(QStringLiteral("Networks/Tracks.bin"), {track});
    check({ui::Answer::Yes, ui::Answer::No});
    EXPECT_EQ(reportRows(), QStringList({full(oak)}));
    EXPECT_TRUE(shown(install.scripted.transcript(),
                      QStringLiteral("Following item(s) were used by this route:-")));
}

TEST_F(RouteCheck, MissingGeometryPartsAreListedAndTexturesStopAtTheShapeCount)
{
    install.writeBinary(QStringLiteral("Assets/Sample/Stock/shunter.bin"),
                        Installation::shapeXml(QStringLiteral("Sample\\Stock\\[00]shunter"),
                                               QStringLiteral("Sample\\Stock\\shunter_wheels"),
                                               QStringLiteral("Sample\\Stock\\shunter")));
    install.writeBinary(QStringLiteral("Assets/Sample/Stock/shunter.GeoPcDx"),
                        Installation::geometryXml({QStringLiteral("[00]shunter_body")}));
    const BlueprintRef shunter{
        QStringLiteral("Sample"), QStringLiteral("Stock"), QStringLiteral("shunter.xml")};
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {shunter, oak, oak});
    const frmDelRoute &window = check({ui::Answer::No, ui::Answer::Yes, ui::Answer::Yes});

    const QStringList transcript = install.scripted.transcript();
    EXPECT_TRUE(shown(transcript, QStringLiteral("Missing Files:-")));
    const QString report = install.forms.get<authoring::frmReport>().RTB1.text();
    const QString stock = install.win(QStringLiteral("Assets/Sample/Stock/"));
    EXPECT_EQ(report,
              QStringLiteral("Texture Check:-\r\n\r\n")
                  + QStringLiteral("Animation file missing:-  ") + stock
                  + QStringLiteral("shunter_wheels.ban\r\nScript file missing:-  ") + stock
                  + QStringLiteral("shunter.lua\r\nTexture file missing:-  ") + stock
                  + QStringLiteral("shunter_body.TgPcDx\r\n"));
    EXPECT_EQ(window.List3.rows(), QStringList({full(oak), full(shunter)}));
    // Two shapes but one texture left after the cut: the list runs past its end and the check
    // ends without showing it.
    EXPECT_FALSE(shown(transcript, QStringLiteral("Following textures were used by this route:-")));
}

TEST_F(RouteCheck, AllFilesPresentShowsNoMissingFilesWindow)
{
    const BlueprintRef signal =
        install.addShape(QStringLiteral("Sample/Scenery/Box/signal"),
                         {QStringLiteral("[00]box"), QStringLiteral("..\\roof")});
    install.writeText(QStringLiteral("Assets/Sample/Scenery/roof.TgPcDx"), "tex");
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {signal, oak, oak});
    check({ui::Answer::No, ui::Answer::Yes, ui::Answer::Yes});
    const QStringList transcript = install.scripted.transcript();
    EXPECT_FALSE(shown(transcript, QStringLiteral("Missing Files:-")));
    EXPECT_TRUE(shown(transcript, QStringLiteral("Following textures were used by this route:-")));
    const QString scenery = install.win(QStringLiteral("Assets/Sample/Scenery/"));
    EXPECT_EQ(reportRows(),
              QStringList({scenery + QStringLiteral("Box\\box*.TgPcDx"),
                           scenery + QStringLiteral("roof*.TgPcDx")}));
}

TEST_F(RouteCheck, AbortStopsTheWalkBetweenFiles)
{
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {ghost});
    tile(QStringLiteral("Scenery/+000001+000000.bin"), {lane});
    tile(QStringLiteral("Scenery/+000002+000000.bin"), {lane});
    install.scripted.onYield = [this] {
        frmDelRoute &window = install.forms.get<frmDelRoute>();
        if (window.File1.listIndex() >= 0) {
            window.Command10.fireClick();
        }
    };
    const frmDelRoute &window = check({});
    EXPECT_EQ(reportRows(), QStringList({full(ghost) + QStringLiteral("   (Scenery Item)")}));
    EXPECT_EQ(window.File1.listIndex(), 0);
    EXPECT_FALSE(shown(install.scripted.transcript(),
                       QStringLiteral("Following item(s) were missing from this route:-")));
    EXPECT_FALSE(install.session().AbortRequested);
}

TEST_F(RouteCheck, ARejectedTileEndsItsFolderAndTheWalkGoesOn)
{
    install.writeText(route + QStringLiteral("Scenery/+000000+000000.bin"), "not a game file");
    tile(QStringLiteral("Scenery/+000001+000000.bin"), {ghost});
    tile(QStringLiteral("Networks/Road Tiles/+000000+000000.bin"), {lane});
    check({ui::Answer::No, ui::Answer::No});
    EXPECT_EQ(reportRows(), QStringList({full(lane) + QStringLiteral("   (Road Item)")}));
}

TEST_F(RouteCheck, AVanishingRouteNeitherCrashesNorWritesIntoTheGame)
{
    tile(QStringLiteral("Scenery/+000000+000000.bin"), {ghost});
    tile(QStringLiteral("Scenery/+000001+000000.bin"), {ghost});
    tile(QStringLiteral("Networks/Road Tiles/+000000+000000.bin"), {lane});
    const QString routeHost = install.host(route);
    // The folder goes once the first tile has been read.
    install.scripted.onYield = [&] {
        if (!reportRows().isEmpty()) {
            QDir(routeHost).removeRecursively();
        }
    };
    const QStringList before = filesBelow(install.host(QStringLiteral("Assets")));
    check({ui::Answer::No, ui::Answer::No});
    EXPECT_EQ(reportRows(), QStringList({full(ghost) + QStringLiteral("   (Scenery Item)")}));
    EXPECT_EQ(filesBelow(install.host(QStringLiteral("Assets"))), before);
    EXPECT_FALSE(QDir(routeHost).exists());
}
