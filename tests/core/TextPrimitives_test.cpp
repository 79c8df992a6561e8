#include "core/TextPrimitives.h"
#include "core/platform/Failure.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace core;

TEST(TextPrimitives, InstrCountsFromOneAndGivesZeroWhenAbsent)
{
    const QString text = u"<Name>abc</Name>"_s;
    EXPECT_EQ(instr(1, text, u"<Name"_s), 1);
    EXPECT_EQ(instr(2, text, u"<"_s), 10);
    EXPECT_EQ(instr(11, text, u"<"_s), 0);
    EXPECT_EQ(instr(text, u"</name"_s), 0);
    EXPECT_EQ(instr(text, u"</name"_s, Qt::CaseInsensitive), 10);
    EXPECT_EQ(instr(17, text, u">"_s), 0);
    // An empty find gives the start while it is at most one past the end.
    EXPECT_EQ(instr(4, u"abc"_s, u""_s), 4);
    EXPECT_EQ(instr(5, u"abc"_s, u""_s), 0);
    EXPECT_EQ(instr(1, u""_s, u""_s), 0);
    EXPECT_EQ(instr(1, u""_s, u"a"_s), 0);
}

TEST(TextPrimitives, InstrRevFindsTheLastMatchEndingByTheStart)
{
    const QString text = u"a\\b\\c"_s;
    EXPECT_EQ(instrRev(text, u"\\"_s), 4);
    EXPECT_EQ(instrRev(text, u"\\"_s, 3), 2);
    EXPECT_EQ(instrRev(text, u"b\\"_s, 4), 3);
    EXPECT_EQ(instrRev(text, u"b\\"_s, 3), 0); // the match must end by the start
    EXPECT_EQ(instrRev(text, u"B"_s, -1, Qt::CaseInsensitive), 3);
    EXPECT_EQ(instrRev(text, u"x"_s), 0);
    EXPECT_EQ(instrRev(text, u"\\"_s, 6), 0);
    EXPECT_EQ(instrRev(text, u""_s, 2), 2);
}

TEST(TextPrimitives, MidLeftRightCutAsTheProgramExpects)
{
    EXPECT_EQ(mid(u"abcdef"_s, 2, 3), u"bcd"_s);
    EXPECT_EQ(mid(u"abcdef"_s, 4), u"def"_s);
    EXPECT_EQ(mid(u"abc"_s, 4), u""_s);
    EXPECT_EQ(mid(u"abc"_s, 2, 10), u"bc"_s);
    EXPECT_EQ(mid(u"abc"_s, 1, 0), u""_s);
    EXPECT_EQ(left(u"abc"_s, 5), u"abc"_s);
    EXPECT_EQ(right(u"abc"_s, 2), u"bc"_s);
    EXPECT_EQ(replaceAll(u"aXbxc"_s, u"x"_s, u"--"_s), u"aXb--c"_s);
    EXPECT_EQ(replaceAll(u"aXbxc"_s, u"x"_s, u"x"_s + u"x"_s, Qt::CaseInsensitive), u"axxbxxc"_s);
    EXPECT_EQ(replaceAll(u"abc"_s, u""_s, u"z"_s), u"abc"_s);
}

TEST(TextPrimitives, BadStartsAndLengthsRaiseFailureFive)
{
    const auto raises5 = [](auto &&call) {
        try {
            call();
        } catch (const platform::Failure &failure) {
            return failure.number() == 5
                && failure.description() == u"Invalid procedure call or argument";
        }
        return false;
    };
    EXPECT_TRUE(raises5([] { (void)instr(0, u"abc"_s, u"a"_s); }));
    EXPECT_TRUE(raises5([] { (void)instr(-3, u""_s, u""_s); }));
    EXPECT_TRUE(raises5([] { (void)instrRev(u"abc"_s, u"a"_s, 0); }));
    EXPECT_TRUE(raises5([] { (void)instrRev(u"abc"_s, u"a"_s, -2); }));
    EXPECT_TRUE(raises5([] { (void)mid(u"abc"_s, 0); }));
    EXPECT_TRUE(raises5([] { (void)mid(u"abc"_s, 1, -2); }));
    EXPECT_TRUE(raises5([] { (void)left(u"abc"_s, -1); }));
    EXPECT_TRUE(raises5([] { (void)right(u"abc"_s, -1); }));
}
