#include "core/platform/BatchRunner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::BatchRunner;
using platform::PathMap;

class BatchRunnerTest : public testing::Test
{
protected:
    QTemporaryDir root;
    PathMap map = PathMap::forHostRoot();
    QStringList out;
    QStringList err;

    QString win(const QString &rel = {}) const
    {
        return platform::toWindowsPath(root.path()) + (rel.isEmpty() ? QString() : u"\\"_s + rel);
    }

    QString host(const QString &rel) const { return root.filePath(rel); }

    void put(const QString &rel, const QByteArray &bytes = "x") const
    {
        QDir().mkpath(QFileInfo(host(rel)).absolutePath());
        QFile file(host(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const QString &rel) const
    {
        QFile file(host(rel));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }

    bool exists(const QString &rel) const { return QFileInfo::exists(host(rel)); }

    // Writes the lines as a batch file in the root and runs it from there.
    int run(const QStringList &lines)
    {
        put(u"run.bat"_s, (u"@echo off\r\n"_s + lines.join(u"\r\n"_s) + u"\r\n"_s).toLatin1());
        map.changeDir(win());
        BatchRunner runner(map,
                           {[this](const QString &t) { out << t; },
                            [this](const QString &t) {
                                err << t;
                            }});
        return runner.run(win(u"run.bat"_s));
    }
};

TEST_F(BatchRunnerTest, XcopyWithoutSwitchesCopiesTheTopFolderOnly)
{
    put(u"src/a.bin"_s, "A");
    put(u"src/b.txt"_s, "B");
    put(u"src/sub/c.bin"_s, "C");
    run({u"xcopy \"%1\\*.bin\" \"%2\\\""_s.arg(win(u"src"_s), win(u"dst"_s))});
    EXPECT_EQ(read(u"dst/a.bin"_s), "A");
    EXPECT_FALSE(exists(u"dst/b.txt"_s));
    EXPECT_FALSE(exists(u"dst/sub"_s));
    EXPECT_TRUE(out.contains(u"1 File(s) copied"_s));
}

TEST_F(BatchRunnerTest, XcopySAndEDifferOnEmptyFolders)
{
    put(u"src/sub/c.bin"_s, "C");
    QDir().mkpath(host(u"src/empty"_s));
    run({u"xcopy %1 %2 /S /I"_s.arg(win(u"src"_s), win(u"s"_s)),
         u"xcopy %1 %2 /E /I"_s.arg(win(u"src"_s), win(u"e"_s))});
    EXPECT_EQ(read(u"s/sub/c.bin"_s), "C");
    EXPECT_FALSE(exists(u"s/empty"_s));
    EXPECT_EQ(read(u"e/sub/c.bin"_s), "C");
    EXPECT_TRUE(QFileInfo(host(u"e/empty"_s)).isDir());
}

TEST_F(BatchRunnerTest, XcopyWildcardTargetAndTheProgramsCallForm)
{
    put(u"Assets/Kuju/Stock/Loco.bin"_s, "L");
    put(u"Assets/Kuju/Stock/Loco.GeoPcDx"_s, "G");
    put(u"Assets/Kuju/Stock/Other.bin"_s, "O");
    // As the packager writes it: a name prefix with "*.*", a target ending in "\*.*".
    run({u"Call XCopy \"%1*.*\" \"%2\\*.*\" /Y"_s.arg(win(u"assets\\kuju\\stock\\Loco"_s),
                                                      win(u"pack\\Assets"_s))});
    EXPECT_EQ(read(u"pack/Assets/Loco.bin"_s), "L");
    EXPECT_EQ(read(u"pack/Assets/Loco.GeoPcDx"_s), "G");
    EXPECT_FALSE(exists(u"pack/Assets/Other.bin"_s));
}

TEST_F(BatchRunnerTest, XcopyOverwritesReadOnlyTargetsOnlyAfterAttrib)
{
    put(u"src/a.bin"_s, "new");
    put(u"dst/a.bin"_s, "old");
    QFile::setPermissions(host(u"dst/a.bin"_s), QFileDevice::ReadOwner);
    run({u"xcopy %1 %2 /Y /C"_s.arg(win(u"src\\a.bin"_s), win(u"dst\\"_s))});
    EXPECT_EQ(read(u"dst/a.bin"_s), "old");
    EXPECT_TRUE(err.contains(u"Access denied"_s));
    run({u"ATTRIB -R \"%1\\*.*\" /s /d"_s.arg(win(u"dst"_s)),
         u"xcopy %1 %2 /Y"_s.arg(win(u"src\\a.bin"_s), win(u"dst\\"_s))});
    EXPECT_EQ(read(u"dst/a.bin"_s), "new");
}

TEST_F(BatchRunnerTest, XcopyWithoutCStopsAtTheFirstFailure)
{
    put(u"src/a.bin"_s, "A");
    put(u"src/b.bin"_s, "B");
    put(u"dst/a.bin"_s, "old");
    QFile::setPermissions(host(u"dst/a.bin"_s), QFileDevice::ReadOwner);
    run({u"xcopy %1 %2 /Y"_s.arg(win(u"src\\*.*"_s), win(u"dst"_s))});
    EXPECT_FALSE(exists(u"dst/b.bin"_s));
    run({u"xcopy %1 %2 /Y /C"_s.arg(win(u"src\\*.*"_s), win(u"dst"_s))});
    EXPECT_EQ(read(u"dst/b.bin"_s), "B");
}

TEST_F(BatchRunnerTest, XcopyIMakesTheTargetAFolderForSeveralFiles)
{
    put(u"src/a.bin"_s, "A");
    put(u"src/b.bin"_s, "B");
    put(u"one.bin"_s, "1");
    run({u"xcopy %1 %2 /I"_s.arg(win(u"src\\*.bin"_s), win(u"many"_s)),
         u"xcopy %1 %2"_s.arg(win(u"one.bin"_s), win(u"single.bin"_s))});
    EXPECT_EQ(read(u"many/a.bin"_s), "A");
    EXPECT_EQ(read(u"many/b.bin"_s), "B");
    EXPECT_EQ(read(u"single.bin"_s), "1");
}

TEST_F(BatchRunnerTest, CopyTakesWildcardsAndQuotedNamesWithBlanks)
{
    put(u"My Scenery/a.bin"_s, "A");
    put(u"My Scenery/b.bin"_s, "B");
    QDir().mkpath(host(u"New Scenery"_s));
    QDir().mkpath(host(u"Deep/Er"_s));
    run({u"Copy \"%1\" \"%2\""_s.arg(win(u"my scenery\\*.*"_s), win(u"new scenery\\*.*"_s)),
         u"copy /Y \"%1\" \"%2\""_s.arg(win(u"My Scenery\\a.bin"_s),
                                        win(u"deep\\\\er\\renamed.bin"_s))});
    EXPECT_EQ(read(u"New Scenery/a.bin"_s), "A");
    EXPECT_EQ(read(u"New Scenery/b.bin"_s), "B");
    EXPECT_EQ(read(u"Deep/Er/renamed.bin"_s), "A");
    EXPECT_TRUE(out.contains(u"        2 file(s) copied."_s));
}

TEST_F(BatchRunnerTest, CopyMakesNoFolders)
{
    put(u"a.bin"_s, "A");
    EXPECT_EQ(run({u"copy %1 %2"_s.arg(win(u"a.bin"_s), win(u"nowhere\\a.bin"_s))}), 1);
    EXPECT_FALSE(exists(u"nowhere"_s));
    EXPECT_TRUE(err.contains(u"The system cannot find the path specified."_s));
}

TEST_F(BatchRunnerTest, DelRemovesMatchingFilesButNotReadOnlyOnes)
{
    put(u"w/a.bin"_s);
    put(u"w/b.bin"_s);
    put(u"w/c.txt"_s);
    put(u"w/sub/d.bin"_s);
    QFile::setPermissions(host(u"w/b.bin"_s), QFileDevice::ReadOwner);
    run({u"del /Q %1"_s.arg(win(u"W\\*.bin"_s))});
    EXPECT_FALSE(exists(u"w/a.bin"_s));
    EXPECT_TRUE(exists(u"w/b.bin"_s));
    EXPECT_TRUE(exists(u"w/c.txt"_s));
    EXPECT_TRUE(exists(u"w/sub/d.bin"_s));
    run({u"del /Q /F /S %1"_s.arg(win(u"W\\*.bin"_s))});
    EXPECT_FALSE(exists(u"w/b.bin"_s));
    EXPECT_FALSE(exists(u"w/sub/d.bin"_s));
    EXPECT_TRUE(exists(u"w/c.txt"_s));
}

TEST_F(BatchRunnerTest, AttribClearsWriteProtectionRecursivelyOnFoldersToo)
{
    put(u"game/Assets/a.bin"_s);
    put(u"game/top.bin"_s);
    const auto readOnlyDir = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
    QFile::setPermissions(host(u"game/Assets/a.bin"_s), QFileDevice::ReadOwner);
    QFile::setPermissions(host(u"game/top.bin"_s), QFileDevice::ReadOwner);
    QFile::setPermissions(host(u"game/Assets"_s), readOnlyDir);
    run({u"ATTRIB -R \"%1\\*.*\" /s /d"_s.arg(win(u"game"_s))});
    for (const QString &rel : {u"game/Assets/a.bin"_s, u"game/top.bin"_s, u"game/Assets"_s}) {
        SCOPED_TRACE(rel.toStdString());
        EXPECT_TRUE(QFileInfo(host(rel)).permissions() & QFileDevice::WriteOwner);
    }
}

TEST_F(BatchRunnerTest, CdDriveChangeAndCallWorkOnMappedPaths)
{
    put(u"sub/inner.bat"_s, "md made\r\necho inner ran\r\n");
    run({u"cd /d %1"_s.arg(win(u"SUB"_s)), u"call inner.bat"_s, u"md \"two words\\deep\""_s});
    EXPECT_TRUE(QFileInfo(host(u"sub/made"_s)).isDir());
    EXPECT_TRUE(QFileInfo(host(u"sub/two words/deep"_s)).isDir());
    EXPECT_TRUE(out.contains(u"inner ran"_s));
}

TEST_F(BatchRunnerTest, BuiltInsRunTogetherWithTheirArgumentsAndCallsByFullPath)
{
    put(u"Deep/Er/inner.bat"_s, "cd..\r\necho.\r\necho in inner\r\n");
    QDir().mkpath(host(u"Deep/Er/Sub"_s));
    run({u"cd /d \"%1\""_s.arg(win(u"deep\\er\\sub"_s)),
         u"call \"%1\""_s.arg(win(u"deep\\er\\INNER.BAT"_s)),
         u"echo.now in"_s,
         u"cd"_s});
    EXPECT_EQ(out, (QStringList{u""_s, u"in inner"_s, u"now in"_s, win(u"deep\\er"_s)}));
}

TEST_F(BatchRunnerTest, XcopyOverwritesWithoutAskingUnlessToldToAsk)
{
    put(u"src/a.bin"_s, "new");
    put(u"dst/a.bin"_s, "old");
    run({u"xcopy %1 %2 /-Y"_s.arg(win(u"src\\a.bin"_s), win(u"dst"_s))});
    EXPECT_EQ(read(u"dst/a.bin"_s), "old");
    // Nobody can answer a prompt in a hidden window: the program's lines rely on overwriting.
    run({u"xcopy %1 %2"_s.arg(win(u"src\\a.bin"_s), win(u"dst"_s))});
    EXPECT_EQ(read(u"dst/a.bin"_s), "new");
}

TEST_F(BatchRunnerTest, UnknownCommandsAreReportedAndSkipped)
{
    run({u"frobnicate now"_s, u"echo after"_s});
    EXPECT_EQ(err,
              QStringList{u"'frobnicate' is not recognized as an internal or external command, "
                          "operable program or batch file."_s});
    EXPECT_TRUE(out.contains(u"after"_s));
}

TEST_F(BatchRunnerTest, EchoRedirectsIntoAFileAndRemIsSilent)
{
    run({u"rem nothing here"_s,
         u"echo first> %1"_s.arg(win(u"log.txt"_s)),
         u"echo second >> %1"_s.arg(win(u"log.txt"_s))});
    EXPECT_EQ(read(u"log.txt"_s), "first\r\nsecond \r\n");
    EXPECT_TRUE(out.isEmpty());
}

TEST_F(BatchRunnerTest, ReadsTheFileAsWindows1252)
{
    QDir().mkpath(host(u"Caf\u00e9"_s));
    put(u"x.bin"_s, "X");
    run({u"copy %1 \"%2\""_s.arg(win(u"x.bin"_s)).arg(win(u"caf"_s)) + u"\xe9\\x.bin"_s});
    EXPECT_EQ(read(u"Caf\u00e9/x.bin"_s), "X");
}
