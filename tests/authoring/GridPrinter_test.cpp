#include "ui/qt/GridPrinter.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace
{

// Fonts need a GUI application; the offscreen platform serves without a display. It lives for the
// test only: one left to static destruction outlives the platform plugin and crashes at exit.
std::unique_ptr<QGuiApplication> makeApplication()
{
    static int argc = 1;
    static char name[] = "bv_authoring_tests";
    static char *argv[] = {name, nullptr};
    if (QCoreApplication::instance() != nullptr) {
        return nullptr;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

QStringList pdfPages(const QString &pdf)
{
    QProcess text;
    text.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    text.waitForFinished(20000);
    return QString::fromUtf8(text.readAllStandardOutput()).split(QLatin1Char('\f'));
}

QString firstLine(const QString &page)
{
    for (const QString &line : page.split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty()) {
            return line;
        }
    }
    return {};
}

} // namespace

TEST(GridPrinter, EveryPageHasItsNumberAtTheTopRight)
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()) {
        GTEST_SKIP() << "pdftotext not installed";
    }
    const std::unique_ptr<QGuiApplication> app = makeApplication();
    ui::PrintJob job;
    job.kind = ui::PrintJob::Kind::Grid;
    job.header = QStringLiteral("||Page %d");
    job.fontName = QStringLiteral("MS Serif");
    job.fontSize = 8;
    for (int row = 1; row <= 120; ++row) {
        job.rows.append({QStringLiteral("Item %1").arg(row),
                         QStringLiteral("Provider\\Product"),
                         QStringLiteral("x")});
    }
    QTemporaryDir dir;
    const QString pdf = dir.path() + QStringLiteral("/grid.pdf");
    int pages = 0;
    {
        QPdfWriter writer(pdf);
        writer.setPageSize(QPageSize(QPageSize::A4));
        pages = uiqt::GridPrinter(job).print(writer);
    }
    ASSERT_GE(pages, 2);
    const QStringList text = pdfPages(pdf);
    ASSERT_GE(text.size(), 2);
    EXPECT_EQ(firstLine(text[1]).trimmed(), QStringLiteral("Page 2"));
    EXPECT_TRUE(text[1].contains(QStringLiteral("Item ")));
    EXPECT_FALSE(text[0].contains(QStringLiteral("Page 2")));

    // Where the words stand: the number in the page's top right corner.
    QProcess boxes;
    boxes.start(QStringLiteral("pdftotext"),
                {QStringLiteral("-bbox"),
                 QStringLiteral("-f"),
                 QStringLiteral("2"),
                 QStringLiteral("-l"),
                 QStringLiteral("2"),
                 pdf,
                 QStringLiteral("-")});
    boxes.waitForFinished(20000);
    const QString html = QString::fromUtf8(boxes.readAllStandardOutput());
    const QRegularExpression page(QStringLiteral("<page width=\"([\\d.]+)\" height=\"([\\d.]+)\""));
    const QRegularExpression number(QStringLiteral("<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" "
                                                   "xMax=\"([\\d.]+)\" yMax=\"[\\d.]+\">2</word>"));
    const QRegularExpressionMatch size = page.match(html);
    const QRegularExpressionMatch word = number.match(html);
    ASSERT_TRUE(size.hasMatch() && word.hasMatch()) << html.left(400).toStdString();
    const double width = size.captured(1).toDouble();
    EXPECT_GT(word.captured(3).toDouble(), width * 0.85);
    EXPECT_LT(word.captured(2).toDouble(), size.captured(2).toDouble() * 0.1);
}
