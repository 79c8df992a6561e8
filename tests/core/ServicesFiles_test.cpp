#include "ServicesFixture.h"
#include "core/Services.h"
#include "core/platform/Failure.h"
#include "ui/ScriptedHost.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

// The failure number a statement raises, 0 when it raises none.
template <typename F> int failureOf(F &&statement)
{
    try {
        statement();
    } catch (const platform::Failure &failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

class ServicesFilesTest : public ServicesFixture
{
};

TEST_F(ServicesFilesTest, NameRaisesAsTheStatementDoes)
{
    put(u"a.bin"_s);
    put(u"b.bin"_s);
    EXPECT_EQ(failureOf([&] { services.Name(win(u"a.bin"_s), win(u"B.BIN"_s)); }), 58);
    EXPECT_EQ(failureOf([&] { services.Name(win(u"none.bin"_s), win(u"c.bin"_s)); }), 53);
    EXPECT_EQ(failureOf([&] { services.Name(win(u"a.bin"_s), win(u"no\\c.bin"_s)); }), 76);
    EXPECT_EQ(failureOf([&] { services.Name(win(u"A.bin"_s), win(u"c.bin"_s)); }), 0);
    EXPECT_TRUE(exists(u"c.bin"_s));
    // Changing only the letter case is a rename, not a clash.
    EXPECT_EQ(failureOf([&] { services.Name(win(u"c.bin"_s), win(u"C.BIN"_s)); }), 0);
    EXPECT_TRUE(exists(u"C.BIN"_s));
}

TEST_F(ServicesFilesTest, MkDirAndRmDirRaiseAsTheStatementsDo)
{
    EXPECT_EQ(failureOf([&] { services.MkDir(win(u"New"_s)); }), 0);
    EXPECT_EQ(failureOf([&] { services.MkDir(win(u"new"_s)); }), 75);
    EXPECT_EQ(failureOf([&] { services.MkDir(win(u"x\\y"_s)); }), 76);
    put(u"New/f.txt"_s);
    EXPECT_EQ(failureOf([&] { services.RmDir(win(u"new"_s)); }), 75);
    EXPECT_EQ(failureOf([&] { services.RmDir(win(u"gone"_s)); }), 76);
    QFile::remove(root.filePath(u"New/f.txt"_s));
    EXPECT_EQ(failureOf([&] { services.RmDir(win(u"NEW"_s)); }), 0);
    EXPECT_FALSE(exists(u"New"_s));
}

TEST_F(ServicesFilesTest, KillTakesWildcardsAndRaises53WhenNothingMatches)
{
    put(u"t/a.xml"_s);
    put(u"t/b.XML"_s);
    put(u"t/c.bin"_s);
    EXPECT_EQ(failureOf([&] { services.Kill(win(u"T\\*.xml"_s)); }), 0);
    EXPECT_EQ(QDir(root.filePath(u"t"_s)).entryList(QDir::Files), QStringList{u"c.bin"_s});
    EXPECT_EQ(failureOf([&] { services.Kill(win(u"t\\*.xml"_s)); }), 53);
    EXPECT_EQ(failureOf([&] { services.Kill(win(u"t\\C.BIN"_s)); }), 0);
    EXPECT_EQ(failureOf([&] { services.Kill(win(u"t\\c.bin"_s)); }), 53);
}

TEST_F(ServicesFilesTest, FileCopyReplacesTheTargetAndRaisesForMissingPlaces)
{
    put(u"a.bin"_s, "new");
    put(u"Out/a.bin"_s, "old");
    EXPECT_EQ(failureOf([&] { services.FileCopy(win(u"a.bin"_s), win(u"out\\A.bin"_s)); }), 0);
    EXPECT_EQ(services.ReadBinary(win(u"Out\\a.bin"_s)), "new");
    EXPECT_EQ(failureOf([&] { services.FileCopy(win(u"none"_s), win(u"b"_s)); }), 53);
    EXPECT_EQ(failureOf([&] { services.FileCopy(win(u"a.bin"_s), win(u"no\\b"_s)); }), 76);
    EXPECT_EQ(services.FileLen(win(u"a.bin"_s)), 3);
    EXPECT_EQ(failureOf([&] { (void)services.FileLen(win(u"none"_s)); }), 53);
}

TEST_F(ServicesFilesTest, ListsAreSortedCaseBlind)
{
    for (const QString &name : {u"b.bin"_s, u"C.bin"_s, u"a.BIN"_s, u"d.txt"_s}) {
        put(u"L/"_s + name);
    }
    QDir().mkpath(root.filePath(u"L/zeta"_s));
    QDir().mkpath(root.filePath(u"L/Alpha"_s));
    EXPECT_EQ(services.listFiles(win(u"l"_s), u"*.bin"_s),
              (QStringList{u"a.BIN"_s, u"b.bin"_s, u"C.bin"_s}));
    EXPECT_EQ(services.listFiles(win(u"l"_s)).size(), 4);
    EXPECT_EQ(services.listFolders(win(u"L"_s)), (QStringList{u"Alpha"_s, u"zeta"_s}));
}

TEST_F(ServicesFilesTest, ReadLinesEndsLinesAtCrLfOrCr)
{
    put(u"r.txt"_s, "one\r\ntwo\rthree\nstill three\r\n\r\nlast");
    EXPECT_EQ(services.ReadLines(win(u"r.txt"_s)),
              (QStringList{u"one"_s, u"two"_s, u"three\nstill three"_s, u""_s, u"last"_s}));
    EXPECT_EQ(failureOf([&] { (void)services.ReadLines(win(u"none"_s)); }), 53);
}

TEST_F(ServicesFilesTest, ChDirMovesTheCurrentFolderOfItsDrive)
{
    QDir().mkpath(root.filePath(u"Work"_s));
    services.ChDir(win(u"work"_s));
    EXPECT_EQ(services.CurDir(), win(u"work"_s));
    services.WriteBinary(u"rel.bin"_s, "R");
    EXPECT_TRUE(exists(u"Work/rel.bin"_s));
    EXPECT_EQ(failureOf([&] { services.ChDir(win(u"none"_s)); }), 76);
    EXPECT_EQ(failureOf([&] { services.WriteBinary(win(u"none\\x.bin"_s), "x"); }), 76);
}

TEST_F(ServicesFilesTest, CopyFolderAndDelAll)
{
    put(u"Src/a.bin"_s, "A");
    put(u"Src/Sub/b.bin"_s, "B");
    services.CopyFolder(win(u"src"_s), win(u"Dst"_s), false);
    EXPECT_EQ(services.ReadBinary(win(u"Dst\\sub\\B.bin"_s)), "B");
    EXPECT_EQ(failureOf([&] { services.CopyFolder(win(u"src"_s), win(u"Dst"_s), false); }), 58);
    EXPECT_EQ(failureOf([&] { services.CopyFolder(win(u"src"_s), win(u"Dst"_s), true); }), 0);
    EXPECT_EQ(failureOf([&] { services.CopyFolder(win(u"none"_s), win(u"Dst"_s), true); }), 76);

    QFile::setPermissions(root.filePath(u"Dst/Sub/b.bin"_s), QFileDevice::ReadOwner);
    services.DelAll(win(u"dst"_s));
    EXPECT_FALSE(exists(u"Dst"_s));
    services.DelAll(win(u"dst"_s)); // missing: swallowed
    services.DelAll(QString());
    EXPECT_TRUE(exists(u"Src/a.bin"_s));
}
