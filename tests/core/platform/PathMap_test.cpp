#include "core/platform/PathMap.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::PathMap;
using platform::toWindowsPath;

class PathMapTest : public testing::Test
{
protected:
    QTemporaryDir root;
    PathMap map = PathMap::forHostRoot();

    QString win(const QString &rel) const { return toWindowsPath(root.path()) + u"\\"_s + rel; }

    void touch(const QString &rel) const
    {
        QFile file(root.filePath(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

TEST_F(PathMapTest, FindsComponentsWhateverTheirCase)
{
    QDir(root.path()).mkpath(u"Content/Routes"_s);
    touch(u"Content/Routes/Routes.xml"_s);
    for (const QString &rel : {u"content\\routes"_s, u"CONTENT\\Routes"_s, u"content/ROUTES"_s}) {
        SCOPED_TRACE(rel.toStdString());
        EXPECT_EQ(map.toHost(win(rel)), root.path() + u"/Content/Routes"_s);
    }
    EXPECT_EQ(map.toHost(win(u"CONTENT\\ROUTES\\routes.XML"_s)),
              root.path() + u"/Content/Routes/Routes.xml"_s);
}

TEST_F(PathMapTest, NewNamesLandInTheExistingFolderNotATwin)
{
    QDir(root.path()).mkpath(u"TempFiles"_s);
    const QString host = map.toHost(win(u"tempfiles\\New\\work.xml"_s));
    EXPECT_EQ(host, root.path() + u"/TempFiles/New/work.xml"_s);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(host).absolutePath()));
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList{u"TempFiles"_s});
}

TEST_F(PathMapTest, ExactNameWinsOverACaseTwin)
{
    QDir(root.path()).mkpath(u"data"_s);
    QDir(root.path()).mkpath(u"Data"_s);
    EXPECT_EQ(map.toHost(win(u"Data"_s)), root.path() + u"/Data"_s);
    EXPECT_EQ(map.toHost(win(u"data"_s)), root.path() + u"/data"_s);
}

TEST_F(PathMapTest, AcceptsSlashesDoubledSeparatorsDotsAndDotDots)
{
    QDir(root.path()).mkpath(u"A/B"_s);
    const QString expected = root.path() + u"/A/B"_s;
    for (const QString &rel :
         {u"a\\\\b"_s, u"a/./b\\"_s, u"a\\b\\c\\..\\..\\B"_s, u"x\\..\\a\\b"_s}) {
        SCOPED_TRACE(rel.toStdString());
        EXPECT_EQ(map.toHost(win(rel)), expected);
    }
    EXPECT_EQ(map.absolute(u"Z:\\..\\..\\tmp"_s), u"Z:\\tmp"_s);
}

TEST_F(PathMapTest, SeesFolderChangesAfterAnEarlierLookup)
{
    QDir(root.path()).mkpath(u"Assets/Kuju"_s);
    // Only a folder that has been still for a while keeps its listing between lookups.
    QThread::msleep(2100);
    EXPECT_EQ(map.toHost(win(u"assets\\kuju"_s)), root.path() + u"/Assets/Kuju"_s);
    EXPECT_EQ(map.toHost(win(u"assets\\kuju"_s)), root.path() + u"/Assets/Kuju"_s);
    QDir(root.path()).mkpath(u"Assets/RSC"_s);
    EXPECT_EQ(map.toHost(win(u"ASSETS\\rsc"_s)), root.path() + u"/Assets/RSC"_s);
    QDir(root.path()).rename(u"Assets/Kuju"_s, u"Assets/KUJU2"_s);
    EXPECT_EQ(map.toHost(win(u"assets\\kuju"_s)), root.path() + u"/Assets/kuju"_s);
}

TEST_F(PathMapTest, RelativePathsFollowTheCurrentFolder)
{
    QDir(root.path()).mkpath(u"Work/Sub"_s);
    ASSERT_TRUE(map.changeDir(win(u"work"_s)));
    EXPECT_EQ(map.toHost(u"sub\\f.txt"_s), root.path() + u"/Work/Sub/f.txt"_s);
    EXPECT_EQ(map.toHost(u"..\\work"_s), root.path() + u"/Work"_s);
    EXPECT_EQ(map.toHost(u"\\"_s), u"/"_s);
    EXPECT_EQ(map.currentDir(), win(u"work"_s));
    EXPECT_FALSE(map.changeDir(win(u"missing"_s)));
    EXPECT_EQ(map.currentDir(), win(u"work"_s));
}

TEST_F(PathMapTest, EachDriveKeepsItsOwnFolder)
{
    QTemporaryDir ownC;
    QDir(ownC.path()).mkpath(u"Games"_s);
    qputenv("WINEPREFIX", root.filePath(u"no-prefix"_s).toLocal8Bit());
    const PathMap withC(ownC.path());
    qunsetenv("WINEPREFIX");
    ASSERT_TRUE(withC.changeDir(win(u""_s)));
    ASSERT_TRUE(withC.changeDir(u"C:\\games"_s, PathMap::DriveChange::Keep));
    EXPECT_EQ(withC.currentDir().left(1), u"Z"_s);
    EXPECT_EQ(withC.toHost(u"C:x.txt"_s), ownC.path() + u"/Games/x.txt"_s);
    ASSERT_TRUE(withC.changeDrive(u"c:"_s));
    EXPECT_EQ(withC.currentDir(), u"C:\\games"_s);
}

TEST_F(PathMapTest, DriveCIsTheWinePrefixWhenThereIsOne)
{
    QDir(root.path()).mkpath(u"prefix/drive_c/Program Files"_s);
    qputenv("WINEPREFIX", root.filePath(u"prefix"_s).toLocal8Bit());
    const PathMap wine(u"/unused"_s);
    qunsetenv("WINEPREFIX");
    const QString driveC = root.path() + u"/prefix/drive_c"_s;
    EXPECT_EQ(wine.toHost(u"c:\\program files\\Game"_s), driveC + u"/Program Files/Game"_s);
    EXPECT_EQ(wine.toWindows(driveC + u"/Program Files"_s), u"C:\\Program Files"_s);
    EXPECT_EQ(wine.toWindows(u"/usr/bin"_s), u"Z:\\usr\\bin"_s);
    EXPECT_EQ(wine.toWindows(u"/"_s), u"Z:\\"_s);
}
