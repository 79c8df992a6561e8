#include "authoring/AuthoringWindows.h"
#include "authoring/fEZPrint.h"
#include "authoring/frmReport.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/Forms.h"
#include "ui/ScriptedHost.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace authoring;

namespace
{

class ReportWindows : public ::testing::Test
{
protected:
    ReportWindows()
    {
        QDir(root.path()).mkpath(QStringLiteral("app"));
        session.appFolder = platform::toWindowsPath(root.path() + QStringLiteral("/app"));
        defineAuthoringWindows(session, forms);
    }

    QByteArray saved(const QString &name) const
    {
        QFile file(root.path() + QLatin1Char('/') + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }

    QString win(const QString &name) const
    {
        return platform::toWindowsPath(root.path()) + QLatin1Char('\\') + name;
    }

    QTemporaryDir root;
    platform::PathMap paths = platform::PathMap::forHostRoot();
    ui::ScriptedHost host;
    core::Services services{paths, host, QStringLiteral(BV_BIN_DIR)};
    core::Session session{services, host, paths};
    ui::Forms forms{host};
};

} // namespace

TEST_F(ReportWindows, RemoveDupesTakesOnlyEqualNeighbours)
{
    frmReport &report = forms.get<frmReport>();
    report.Command4.fireClick();
    EXPECT_EQ(report.List1.listCount(), 0);
    report.List1.setRows({QStringLiteral("a"),
                          QStringLiteral("a"),
                          QStringLiteral("A"),
                          QStringLiteral("b"),
                          QStringLiteral("b"),
                          QStringLiteral("b"),
                          QStringLiteral("a")});
    report.Command4.fireClick();
    EXPECT_EQ(
        report.List1.rows(),
        QStringList(
            {QStringLiteral("a"), QStringLiteral("A"), QStringLiteral("b"), QStringLiteral("a")}));
}

TEST_F(ReportWindows, SaveWritesTheTextBeforeTheRows)
{
    frmReport &report = forms.get<frmReport>();
    report.List1.setRows({QStringLiteral("row one"), QStringLiteral("row two")});
    host.queueFile(win(QStringLiteral("rows.txt")));
    report.Command2.fireClick();
    EXPECT_EQ(saved(QStringLiteral("rows.txt")), QByteArray("row one\r\nrow two\r\n"));

    report.RTB1.setText(QStringLiteral("Missing Files:-\r\nStra\u00dfe"));
    host.queueFile(win(QStringLiteral("text.txt")));
    report.Command2.fireClick();
    EXPECT_EQ(saved(QStringLiteral("text.txt")),
              QByteArray("Missing Files:-\r\nStra\xdf"
                         "e"));

    host.queueFile(QString());
    report.Command2.fireClick();
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Files).size(), 2);
    EXPECT_TRUE(host.transcript().contains(
        QStringLiteral("dialog save \"Save Object File\" \"Text Files (*.txt)|*.txt\" -> \"\"")));
}

TEST_F(ReportWindows, PrintSendsTheSelectionOrTheWholeText)
{
    frmReport &report = forms.get<frmReport>();
    report.RTB1.setText(QStringLiteral("first\r\nsecond"));
    report.Command3.fireClick();
    report.RTB1.setSelection(7, 6);
    report.Command3.fireClick();
    EXPECT_EQ(host.transcript(),
              QStringList({QStringLiteral("print text \"Report:-\" \"first\\nsecond\""),
                           QStringLiteral("print text \"Report:-\" \"second\"")}));
}

TEST_F(ReportWindows, PrintPreviewPrintsTheCallersGridOnShowing)
{
    ui::Grid grid;
    grid.setCols(2);
    grid.setRows(3);
    grid.setTextMatrix(1, 1, QStringLiteral("x"));
    fEZPrint &print = forms.get<fEZPrint>();
    print.PrintType = 1;
    print.ReportKind = fEZPrint::GridReport;
    print.Source = &grid;
    forms.show<fEZPrint>(true);
    EXPECT_EQ(host.transcript(),
              QStringList({QStringLiteral("showmodal fEZPrint \"Print Preview\""),
                           QStringLiteral("print grid \"Print Preview\" \"3 rows\"")}));
    EXPECT_TRUE(print.Command2.visible());
}
