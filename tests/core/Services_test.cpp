#include "ServicesFixture.h"
#include "core/Services.h"
#include "core/platform/Failure.h"
#include "ui/ScriptedHost.h"
#include "ui/Transcript.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ServicesTest : public ServicesFixture
{
};

TEST_F(ServicesTest, FolderExistsWithOrWithoutATrailingBackslashAndCutsIt)
{
    QDir().mkpath(root.filePath(u"Routes"_s));
    put(u"file.txt"_s);
    QString withSlash = win(u"routes\\"_s);
    EXPECT_TRUE(services.FolderExists(withSlash));
    EXPECT_EQ(withSlash, win(u"routes"_s));
    QString without = win(u"Routes"_s);
    EXPECT_TRUE(services.FolderExists(without));
    EXPECT_EQ(without, win(u"Routes"_s));
    QString twice = win(u"Routes\\\\"_s);
    EXPECT_TRUE(services.FolderExists(twice));
    EXPECT_EQ(twice, win(u"Routes\\"_s)); // only one is cut
    QString file = win(u"file.txt"_s);
    EXPECT_FALSE(services.FolderExists(file));
    QString missing = win(u"missing\\"_s);
    EXPECT_FALSE(services.FolderExists(missing));
}

TEST_F(ServicesTest, FileExistsOnlyForReadableFiles)
{
    put(u"Sub/Data.bin"_s);
    EXPECT_TRUE(services.FileExists(win(u"sub\\data.BIN"_s)));
    EXPECT_FALSE(services.FileExists(win(u"Sub"_s)));
    EXPECT_FALSE(services.FileExists(win(u"Sub\\none.bin"_s)));
    EXPECT_FALSE(services.FileExists(QString()));
}

TEST_F(ServicesTest, ReadAndWriteKeepEveryByte)
{
    QByteArray all;
    for (int b = 0; b < 256; ++b) {
        all.append(static_cast<char>(b));
    }
    put(u"all.txt"_s, all);
    const QString text = services.ReadFile(win(u"ALL.txt"_s));
    services.WriteFile(win(u"copy.txt"_s), text);
    EXPECT_EQ(read(u"copy.txt"_s), all);
    EXPECT_TRUE(host.transcript().isEmpty());
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Files).size(), 2); // no temporary left behind
}

TEST_F(ServicesTest, MarkerFilesAreReadAsUnicode)
{
    put(u"points.MKR"_s,
        QByteArray("\xFF\xFE"
                   "A\0\xAC\x20",
                   6));
    EXPECT_EQ(services.ReadFile(win(u"points.mkr"_s)), u"A\u20AC"_s);
    EXPECT_EQ(services.ReadFile(win(u"missing.txt"_s)), QString());
}

TEST_F(ServicesTest, WritingEmptyTextShowsTheWriteError)
{
    const QString path = win(u"empty.txt"_s);
    services.WriteFile(path, QString());
    ASSERT_EQ(host.transcript().size(), 1);
    const QString line = host.transcript().first();
    EXPECT_TRUE(line.startsWith(u"msgbox exclamation"_s)) << line.toStdString();
    EXPECT_TRUE(line.contains(ui::quoted(u"An error occurred while writing "_s + path)))
        << line.toStdString();
    EXPECT_TRUE(line.contains(ui::quoted(host.appTitle())));
}

TEST_F(ServicesTest, WriteFileLandsInTheExistingFolderWhateverItsCase)
{
    QDir().mkpath(root.filePath(u"TempFiles"_s));
    services.WriteFile(win(u"tempfiles\\do_read.bat"_s), u"@echo off\r\n"_s);
    EXPECT_EQ(read(u"TempFiles/do_read.bat"_s), "@echo off\r\n");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(ServicesTest, ShellAndWaitRunsBatchFilesAndChildrenAndSwallowsFailures)
{
    put(u"src/a.bin"_s, "A");
    services.WriteFile(
        win(u"do_copy.bat"_s),
        u"call xcopy \"%1\\*.*\" \"%2\\*.*\" /s /y\r\n"_s.arg(win(u"src"_s), win(u"dst"_s)));
    services.ChDir(win());
    EXPECT_GT(services.ShellAndWait(u"do_copy.bat"_s), 0);
    EXPECT_EQ(read(u"dst/a.bin"_s), "A");
    EXPECT_GT(services.ShellAndWait(u"Z:\\bin\\sh -c \"exit 3\""_s, false), 0);
    EXPECT_EQ(services.ShellAndWait(u"no-such-tool.exe"_s), 0);
}

TEST_F(ServicesTest, GetRegValueGivesTheDefaultOrRaises1001)
{
    put(u"prefix/system.reg"_s,
        "WINE REGISTRY Version 2\n[Software\\\\Game] "
        "1\n\"Path\"=\"C:\\\\Game\"\n\"Q\"=hex(b):00\n");
    qputenv("WINEPREFIX", root.filePath(u"prefix"_s).toLocal8Bit());
    EXPECT_EQ(
        services.GetRegValue(platform::RegistryRoot::LocalMachine, u"Software\\Game"_s, u"Path"_s),
        QVariant(u"C:\\Game"_s));
    EXPECT_EQ(services.GetRegValue(
                  platform::RegistryRoot::LocalMachine, u"Software\\None"_s, u"Path"_s, u"d"_s),
              QVariant(u"d"_s));
    try {
        services.GetRegValue(platform::RegistryRoot::LocalMachine, u"Software\\Game"_s, u"Q"_s);
        ADD_FAILURE() << "no failure";
    } catch (const platform::Failure &failure) {
        EXPECT_EQ(failure.number(), 1001);
    }
    qunsetenv("WINEPREFIX");
}
