#include "core/XmlDetail.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace core;

TEST(PutDetail, ReplacesTheValueAndLeavesPosAtTheOldClosingTag)
{
    QString text = u"<a><e d:type=\"sUInt64\">1</e><e>22</e><DevString>x</DevString></a>"_s;
    int pos = 1;
    PutDetail(text, pos, u"e"_s, u"12345"_s);
    EXPECT_EQ(text, u"<a><e d:type=\"sUInt64\">12345</e><e>22</e><DevString>x</DevString></a>"_s);
    EXPECT_EQ(pos, 25); // where "</e" stood before the write
    PutDetail(text, pos, u"e"_s, u"7"_s);
    PutDetail(text, pos, u"DevString"_s, u"G"_s);
    EXPECT_EQ(text, u"<a><e d:type=\"sUInt64\">12345</e><e>7</e><DevString>G</DevString></a>"_s);
}

TEST(PutDetail, AMissingTagLeavesTheTextAndZeroesPos)
{
    const QString original = u"<a><b>1</b></a>"_s;
    for (const int start : {1, 0, 99}) {
        SCOPED_TRACE(start);
        QString text = original;
        int pos = start;
        PutDetail(text, pos, u"c"_s, u"x"_s);
        EXPECT_EQ(text, original);
        EXPECT_EQ(pos, 0);
    }
    QString exact = original;
    int pos = 1;
    PutDetail(exact, pos, u"B"_s, u"x"_s); // exact case only
    EXPECT_EQ(exact, original);
}

TEST(GetDetail, ReadsPastAttributesAndMatchesAPrefix)
{
    const QString text = u"<Name lang=\"en\">Loco</Name><NameX>Other</NameX>"_s;
    QString value = u"kept"_s;
    int pos = 1;
    GetDetail(text, pos, u"Name"_s, value);
    EXPECT_EQ(value, u"Loco"_s);
    EXPECT_EQ(pos, 21);
    GetDetail(text, pos, u"Name"_s, value);
    EXPECT_EQ(value, u"Other"_s);
    pos = 40;
    GetDetail(text, pos, u"Name"_s, value);
    EXPECT_EQ(pos, 0);
    EXPECT_EQ(value, u"Other"_s);
}
