// The main window's file roads over a real converter: work-file names, the order of backup and
// copy when a save fails, and the file-kind table of the command line.

#include "core/ConverterBridge.h"
#include "core/platform/Failure.h"
#include "core/platform/PathMap.h"
#include "ui/ScriptedHost.h"
#include "workbench/Workbench.h"
#include "workbench/frmEditor.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const char tileXml[] =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
    "<cRecordSet xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\">\r\n"
    "\t<Name d:type=\"cDeltaString\">tile</Name>\r\n"
    "</cRecordSet>\r\n";

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class FileRoadsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QFile::exists(QStringLiteral(BV_BIN_DIR) + u"/serz.exe"_s));
        QDir(root.path()).mkpath(u"app"_s);
        QDir(root.path()).mkpath(u"game/Content"_s);
        writeFile(u"app/preferences.txt"_s,
                  "12000,9000,0,0,\"\",\"\",\"" + win(u"game"_s).toUtf8()
                      + "\",#FALSE#,\"\",\"\"\r\n");
    }

    QString host(const QString &rel) const { return root.path() + u'/' + rel; }

    QString win(const QString &rel) const
    {
        return platform::toWindowsPath(host(rel)).replace(u'/', u'\\');
    }

    void writeFile(const QString &rel, const QByteArray &bytes) const
    {
        QFile file(host(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    // A game binary made from XML by the real converter.
    void makeBinary(const QString &rel)
    {
        writeFile(rel + u".xml"_s, tileXml);
        QProcess::execute(QStringLiteral(BV_BIN_DIR) + u"/serz.exe"_s,
                          {host(rel + u".xml"_s), u"bin:"_s + host(rel)});
        ASSERT_TRUE(QFile::exists(host(rel)));
    }

    workbench::frmEditor &start(const QString &commandLine = {})
    {
        bench = std::make_unique<workbench::Workbench>(
            script, workbench::Folders{host(u"app"_s), QStringLiteral(BV_BIN_DIR)}, commandLine);
        return bench->start();
    }

    QTemporaryDir root;
    ui::ScriptedHost script;
    std::unique_ptr<workbench::Workbench> bench;
};

} // namespace

TEST(ConverterBridge, WorkNamesCutAtTheLastDot)
{
    struct Case {
        QString source;
        QString stem;
        QString ext;
    };

    const Case cases[] = {
        {u"C:\\game\\Scenario.bin"_s, u"C:\\app\\TempFiles\\Scenario."_s, u"bin"_s},
        {u"C:\\a.b\\tile.v2.GeoPcDx"_s, u"C:\\app\\TempFiles\\tile.v2."_s, u"GeoPcDx"_s},
        {u"C:\\game\\mycost"_s, u"C:\\app\\TempFiles\\"_s, u"mycost"_s},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.source.toStdString());
        const core::WorkNames work =
            core::ConverterBridge::workNames(u"C:\\app\\TempFiles"_s, c.source);
        EXPECT_EQ(work.stem, c.stem);
        EXPECT_EQ(work.ext, c.ext);
    }
    EXPECT_EQ(core::ConverterBridge::toXmlCommand(u"C:\\a b\\x.bin"_s, u"C:\\t\\x.xml"_s),
              u"serz.exe \"C:\\a b\\x.bin\" xml:\"C:\\t\\x.xml\""_s);
    EXPECT_EQ(core::ConverterBridge::toBinCommand(u"x.xml"_s, u"x.bin"_s, true),
              u"serz.exe \"x.xml\" /bin:\"x.bin\""_s);
}

TEST_F(FileRoadsTest, AFailedSaveLeavesTheOriginalAsTheBackup)
{
    makeBinary(u"game/Content/tile.bin"_s);
    const QByteArray original = readAll(host(u"game/Content/tile.bin"_s));
    workbench::frmEditor &editor = start();
    script.queueFile(win(u"game/Content/tile.bin"_s));
    editor.mnuOpenRS_Click();
    ASSERT_TRUE(
        editor.RichTextBox1.text().contains(u"<Name d:type=\"cDeltaString\">tile</Name>"_s));

    editor.RichTextBox1.setText(u"this is no longer XML"_s);
    try {
        editor.mnuSaveRS_Click();
        FAIL() << "the save went through";
    } catch (const platform::Failure &failure) {
        EXPECT_EQ(failure.number(), platform::FileNotFound);
    }
    EXPECT_FALSE(QFile::exists(host(u"game/Content/tile.bin"_s)));
    EXPECT_EQ(readAll(host(u"game/Content/tile.bin.bak"_s)), original);
}

TEST_F(FileRoadsTest, ASuffixWithoutADotStillPicksTheRoad)
{
    writeFile(u"game/mycost"_s, tileXml);
    makeBinary(u"game/UPPER.BIN"_s);
    for (const QString &name : {u"game/mycost"_s, u"game/UPPER.BIN"_s}) {
        SCOPED_TRACE(name.toStdString());
        workbench::frmEditor &editor = start(u"\""_s + win(name) + u"\""_s);
        EXPECT_EQ(editor.Text1.text(), win(name));
        EXPECT_TRUE(
            editor.RichTextBox1.text().contains(u"<Name d:type=\"cDeltaString\">tile</Name>"_s));
    }
}
