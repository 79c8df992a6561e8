#include "core/ReplaceBackup.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ReplaceBackupTest : public testing::Test
{
protected:
    QTemporaryDir root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    core::ReplaceBackup backup{map};

    QString win(const QString &name) const
    {
        return platform::toWindowsPath(root.path()) + u"\\"_s + name;
    }

    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(root.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const QString &name) const
    {
        QFile file(root.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }
};

TEST_F(ReplaceBackupTest, TakesBakThenTheFirstFreeNumber)
{
    for (const char *generation : {"one", "two", "three"}) {
        put(u"Scenario.bin"_s, generation);
        const auto kept = backup.keep(win(u"Scenario.bin"_s));
        ASSERT_TRUE(kept.ok());
    }
    EXPECT_EQ(read(u"Scenario.bin.bak"_s), "one");
    EXPECT_EQ(read(u"Scenario.bin.bak1"_s), "two");
    EXPECT_EQ(read(u"Scenario.bin.bak2"_s), "three");
    EXPECT_FALSE(QFile::exists(root.filePath(u"Scenario.bin"_s)));

    // A gap is filled before higher numbers.
    QFile::remove(root.filePath(u"Scenario.bin.bak1"_s));
    put(u"Scenario.bin"_s, "four");
    EXPECT_EQ(backup.keep(win(u"Scenario.bin"_s)).value(), win(u"Scenario.bin.bak1"_s));
}

TEST_F(ReplaceBackupTest, WithAllFiftyOneTakenNothingMoves)
{
    put(u"a.bin.BAK"_s, "old"); // any case counts as taken
    for (int n = 1; n <= 50; ++n) {
        put(u"a.bin.bak%1"_s.arg(n), "old");
    }
    put(u"a.bin"_s, "current");
    const auto kept = backup.keep(win(u"a.bin"_s));
    ASSERT_TRUE(kept.ok());
    EXPECT_TRUE(kept.value().isEmpty());
    EXPECT_EQ(read(u"a.bin"_s), "current");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Files).size(), 52);
}

TEST_F(ReplaceBackupTest, AMissingFileIsFileNotFound)
{
    const auto kept = backup.keep(win(u"none.bin"_s));
    ASSERT_FALSE(kept.ok());
    EXPECT_EQ(kept.error().number, 53);
}
