#include "core/platform/ProcessRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::HostCommand;
using platform::PathMap;
using platform::ProcessRunner;

class ProcessRunnerTest : public testing::Test
{
protected:
    QTemporaryDir root;
    PathMap map = PathMap::forHostRoot();
    QByteArray savedPath = qgetenv("PATH");

    void TearDown() override { qputenv("PATH", savedPath); }

    QString win(const QString &rel) const
    {
        return platform::toWindowsPath(root.path()) + u"\\"_s + rel;
    }

    void put(const QString &rel, const QByteArray &bytes, bool executable = false) const
    {
        QDir().mkpath(QFileInfo(root.filePath(rel)).absolutePath());
        QFile file(root.filePath(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        if (executable) {
            file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
        }
    }
};

TEST_F(ProcessRunnerTest, SerzResolvesInTheSystemFolderWithPathArgumentsMapped)
{
    put(u"sys/serz.exe"_s, "#!/bin/sh\n", true);
    QDir().mkpath(root.filePath(u"Work"_s));
    const ProcessRunner runner(map, root.filePath(u"sys"_s));
    const auto command = runner.resolve(u"SERZ.EXE \"%1\" bin:\"%2\" /xml:%3 plain"_s.arg(
        win(u"work\\a.xml"_s), win(u"WORK\\a b.bin"_s), win(u"w.xml"_s)));
    ASSERT_TRUE(command.ok()) << command.error().description.toStdString();
    EXPECT_EQ(command.value().kind, HostCommand::Kind::Native);
    EXPECT_EQ(command.value().program, root.filePath(u"sys/serz.exe"_s));
    EXPECT_EQ(command.value().arguments,
              (QStringList{root.filePath(u"Work/a.xml"_s),
                           u"bin:"_s + root.filePath(u"Work/a b.bin"_s),
                           u"/xml:"_s + root.filePath(u"w.xml"_s),
                           u"plain"_s}));
}

TEST_F(ProcessRunnerTest, WindowsProgramsNeedWineAndKeepTheirArguments)
{
    put(u"game/RailSim.exe"_s, "MZ\x90\x00", true);
    put(u"nowine/placeholder"_s, "");
    qputenv("PATH", root.filePath(u"nowine"_s).toLocal8Bit());
    const ProcessRunner runner(map, root.filePath(u"sys"_s));
    const QString line = u"\"%1\" -x C:\\a.txt"_s.arg(win(u"GAME\\railsim.exe"_s));
    const auto missing = runner.resolve(line);
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(
        missing.error().description,
        u"wine is needed to run %1; install the wine package"_s.arg(win(u"GAME\\railsim.exe"_s)));

    put(u"wine/wine"_s, "#!/bin/sh\n", true);
    qputenv("PATH", root.filePath(u"wine"_s).toLocal8Bit());
    const auto viaWine = runner.resolve(line);
    ASSERT_TRUE(viaWine.ok());
    EXPECT_EQ(viaWine.value().kind, HostCommand::Kind::Wine);
    EXPECT_EQ(viaWine.value().arguments,
              (QStringList{root.filePath(u"game/RailSim.exe"_s), u"-x"_s, u"C:\\a.txt"_s}));
}

TEST_F(ProcessRunnerTest, WaitsForTheChildAndYieldsMeanwhile)
{
    const ProcessRunner runner(map, root.path());
    int yields = 0;
    const auto pid = runner.runAndWait(
        u"Z:\\bin\\sh -c \"sleep 0.2; echo done > $0\" %1"_s.arg(win(u"marker.txt"_s)),
        [&] { ++yields; });
    ASSERT_TRUE(pid.ok()) << pid.error().description.toStdString();
    EXPECT_GT(pid.value(), 0);
    EXPECT_TRUE(QFileInfo::exists(root.filePath(u"marker.txt"_s)));
    EXPECT_GT(yields, 0);
}

TEST_F(ProcessRunnerTest, RunsInTheCurrentFolder)
{
    QDir().mkpath(root.filePath(u"Here"_s));
    ASSERT_TRUE(map.changeDir(win(u"here"_s)));
    const ProcessRunner runner(map, root.path());
    ASSERT_TRUE(runner.runAndWait(u"Z:\\bin\\sh -c \"pwd > out.txt\""_s).ok());
    QFile out(root.filePath(u"Here/out.txt"_s));
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    EXPECT_EQ(out.readAll().trimmed(), root.filePath(u"Here"_s).toLocal8Bit());
}

TEST_F(ProcessRunnerTest, BatchFilesRunInsideByBareNameFromTheCurrentFolder)
{
    put(u"Temp/do_read.bat"_s, "@echo off\r\nmd made\r\n");
    ASSERT_TRUE(map.changeDir(win(u"temp"_s)));
    const ProcessRunner runner(map, root.path());
    ASSERT_TRUE(runner.runAndWait(u"DO_READ.BAT"_s).ok());
    EXPECT_TRUE(QFileInfo(root.filePath(u"Temp/made"_s)).isDir());
}

TEST_F(ProcessRunnerTest, AMissingProgramIsAnError)
{
    const ProcessRunner runner(map, root.path());
    const auto result = runner.runAndWait(u"no-such-program-here.exe x"_s);
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().number, platform::FileNotFound);
    EXPECT_FALSE(runner.runAndWait(u"   "_s).ok());
}
