#include "Installation.h"
#include "authoring/AuthoringWindows.h"
#include "routes/RoutesWindows.h"
#include "routes/frmDelRoute.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

using routes::frmDelRoute;
using routes::testing::CatalogueEntry;
using routes::testing::Installation;

namespace
{

const QString routeFolder = QStringLiteral("11111111-2222-3333-4444-555555555555");

QString guid(int n)
{
    return QStringLiteral("00000000-0000-0000-0000-%1").arg(n, 12, 10, QLatin1Char('0'));
}

int questionsIn(const QStringList &transcript)
{
    int count = 0;
    for (const QString &line : transcript) {
        count += line.contains(QStringLiteral("listed in Scenarios.bin does not exist!")) ? 1 : 0;
    }
    return count;
}

class ContentListing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!install.converterFound()) {
            GTEST_SKIP() << "serz.exe not built";
        }
        install.defineWindows();
    }

    // A route whose catalogue lists two scenarios on disk and three whose folders are gone.
    void addRouteWithStaleEntries()
    {
        QList<CatalogueEntry> scenarios;
        for (int n = 1; n <= 5; ++n) {
            scenarios.append({guid(n), {QStringLiteral("Scenario %1").arg(n)}});
        }
        install.addRoute(routeFolder, QStringLiteral("Branch"), scenarios);
        for (const int n : {1, 4}) {
            install.makeFolder(QStringLiteral("Content/Routes/") + routeFolder
                               + QStringLiteral("/Scenarios/") + guid(n));
        }
    }

    frmDelRoute &openAndSelectRoute()
    {
        frmDelRoute &window = install.forms.get<frmDelRoute>();
        window.List1.userSelect({0});
        return window;
    }

    QString catalogue() const
    {
        return QStringLiteral("Content/Routes/") + routeFolder + QStringLiteral("/Scenarios.bin");
    }

    Installation install;
};

} // namespace

TEST_F(ContentListing, RoutesShowTheirFirstNonEmptyName)
{
    install.writeText(QStringLiteral("Content/Routes.xml"),
                      Installation::routesXml(
                          {{QStringLiteral("r-1"), {QStringLiteral("English Name")}},
                           {QStringLiteral("r-2"), {{}, {}, {}, QStringLiteral("Nur Deutsch")}},
                           {QStringLiteral("r-3"), {}}})
                          .toUtf8());
    const frmDelRoute &window = install.forms.get<frmDelRoute>();
    EXPECT_EQ(window.List1.rows(),
              QStringList({QStringLiteral("English Name\tr-1"),
                           QStringLiteral("Nur Deutsch\tr-2"),
                           QStringLiteral("\tr-3")}));
    EXPECT_EQ(window.List2.rows(),
              QStringList({QStringLiteral("r-1"), QStringLiteral("r-2"), QStringLiteral("r-3")}));
    EXPECT_EQ(
        install.session().RouteNames,
        QStringList({QStringLiteral("English Name"), QStringLiteral("Nur Deutsch"), QString()}));
    EXPECT_EQ(window.caption(), QStringLiteral("Select Route"));
    EXPECT_EQ(window.OKButton.caption(), QStringLiteral("Delete Selected Route"));
    EXPECT_FALSE(window.Command5.visible());
}

TEST_F(ContentListing, CataloguesWithoutRoutesGiveEmptyLists)
{
    for (const QByteArray &text : {QByteArray("<cRouteDatabase><Routes/></cRouteDatabase>"),
                                   QByteArray("\x00\x01 not xml at all <DevString", 28),
                                   QByteArray()}) {
        SCOPED_TRACE(text.toStdString());
        install.writeText(QStringLiteral("Content/Routes.xml"), text);
        frmDelRoute &window = install.forms.get<frmDelRoute>();
        EXPECT_EQ(window.List1.listCount(), 0);
        EXPECT_TRUE(install.session().RouteFolders.isEmpty());
        install.forms.unload(window);
    }
}

TEST_F(ContentListing, PackagingModesSetCaptionsAndButtons)
{
    install.session().DelRouteForPack = true;
    frmDelRoute &pack = install.forms.get<frmDelRoute>();
    EXPECT_EQ(pack.caption(), QStringLiteral("Select Route to Package"));
    EXPECT_EQ(pack.OKButton.caption(), QStringLiteral("Package Selected Route"));
    EXPECT_TRUE(pack.Command8.visible());
    install.forms.unload(pack);
    install.session().PackScenarioMode = true;
    frmDelRoute &scenarios = install.forms.get<frmDelRoute>();
    EXPECT_FALSE(scenarios.Command4.visible());
    EXPECT_FALSE(scenarios.OKButton.visible());
    EXPECT_TRUE(scenarios.Command5.visible() && scenarios.Command6.visible());
    install.forms.unload(scenarios);
    EXPECT_FALSE(install.session().PackScenarioMode);
}

TEST_F(ContentListing, OneYesRemovesEveryStaleEntryWithOneBackup)
{
    addRouteWithStaleEntries();
    install.scripted.queueAnswer(ui::Answer::Yes);
    const frmDelRoute &window = openAndSelectRoute();
    EXPECT_EQ(questionsIn(install.scripted.transcript()), 1);
    EXPECT_EQ(window.List3.rows(),
              QStringList({QStringLiteral("Scenario 1\t") + guid(1),
                           QStringLiteral("Scenario 4\t") + guid(4)}));
    EXPECT_EQ(window.List4.rows(), QStringList({guid(1), guid(4)}));
    EXPECT_TRUE(install.exists(catalogue() + QStringLiteral(".bak")));
    EXPECT_FALSE(install.exists(catalogue() + QStringLiteral(".bak1")));

    QProcess serz;
    serz.start(QStringLiteral(BV_BIN_DIR "/serz.exe"),
               {install.host(catalogue()),
                QStringLiteral("xml:") + install.host(QStringLiteral("check.xml"))});
    ASSERT_TRUE(serz.waitForFinished(10000));
    QFile rewritten(install.host(QStringLiteral("check.xml")));
    ASSERT_TRUE(rewritten.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(rewritten.readAll());
    EXPECT_EQ(text.count(QStringLiteral("<DevString")), 2);
    EXPECT_TRUE(text.contains(guid(4)));
}

TEST_F(ContentListing, NoToEachStaleEntryKeepsTheCatalogue)
{
    addRouteWithStaleEntries();
    QFile before(install.host(catalogue()));
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    const QByteArray bytes = before.readAll();
    for (int i = 0; i < 3; ++i) {
        install.scripted.queueAnswer(ui::Answer::No);
    }
    const frmDelRoute &window = openAndSelectRoute();
    EXPECT_EQ(questionsIn(install.scripted.transcript()), 3);
    EXPECT_EQ(window.List3.listCount(), 2);
    EXPECT_FALSE(install.exists(catalogue() + QStringLiteral(".bak")));
    QFile after(install.host(catalogue()));
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), bytes);
}

TEST_F(ContentListing, AnExistingBackupGetsANumberedSuccessor)
{
    addRouteWithStaleEntries();
    install.writeText(catalogue() + QStringLiteral(".bak"), "older");
    install.scripted.queueAnswer(ui::Answer::Yes);
    openAndSelectRoute();
    EXPECT_TRUE(install.exists(catalogue() + QStringLiteral(".bak1")));
    QFile older(install.host(catalogue() + QStringLiteral(".bak")));
    ASSERT_TRUE(older.open(QIODevice::ReadOnly));
    EXPECT_EQ(older.readAll(), QByteArray("older"));
}

TEST_F(ContentListing, ACatalogueTheConverterRejectsListsNothing)
{
    install.addRoute(routeFolder, QStringLiteral("Branch"), {});
    install.writeText(catalogue(), "SERZ but not really");
    const frmDelRoute &window = openAndSelectRoute();
    EXPECT_EQ(window.List3.listCount(), 0);
    EXPECT_EQ(install.session().CurrentFile.compare(install.win(catalogue()), Qt::CaseInsensitive),
              0);
}
