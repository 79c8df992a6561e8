#include "core/platform/ProcessList.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::ProcessList;

TEST(ProcessList, MatchesTheTailOfTheImageNameWhateverItsCase)
{
    EXPECT_TRUE(ProcessList::tailMatches(u"RailSim.exe"_s, u"railsim.EXE"_s));
    EXPECT_TRUE(ProcessList::tailMatches(u"RailSim.exe"_s, u"sim.exe"_s));
    EXPECT_FALSE(ProcessList::tailMatches(u"RailSim.exe"_s, u"RailSim"_s));
    EXPECT_FALSE(ProcessList::tailMatches(u"Sim.exe"_s, u"RailSim.exe"_s));
}

TEST(ProcessList, EmptyOrUnknownNamesEndNothing)
{
    EXPECT_EQ(ProcessList::killProcess({}), 0);
    EXPECT_EQ(ProcessList::killProcess(u"no-process-has-this-name-7c1e.exe"_s), 0);
}

TEST(ProcessList, EndsARunningChildByATailOfItsName)
{
    QTemporaryDir dir;
    const QString image = dir.filePath(u"BvSleeperTest.exe"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, image));
    QProcess child;
    child.start(image, {u"30"_s});
    ASSERT_TRUE(child.waitForStarted());

    bool listed = false;
    for (const platform::ProcessEntry &entry : ProcessList::snapshot()) {
        listed =
            listed || (entry.pid == child.processId() && entry.imageName == u"BvSleeperTest.exe");
    }
    EXPECT_TRUE(listed);
    EXPECT_EQ(ProcessList::killProcess(u"SLEEPERTEST.EXE"_s), 1);
    EXPECT_TRUE(child.waitForFinished(5000));
    EXPECT_EQ(child.exitStatus(), QProcess::CrashExit);
}
