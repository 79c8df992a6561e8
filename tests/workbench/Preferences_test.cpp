// preferences.txt as the program writes and reads it.

#include "core/Preferences.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Preferences, WrittenFileReadsBackIntoTheSameTenValues)
{
    core::Preferences prefs;
    prefs.width = 12345;
    prefs.height = -2;
    prefs.top = 32767;
    prefs.left = -32768;
    prefs.GraphicsEditorPath = u"C:\\Tools\\paint, the good one.exe"_s;
    prefs.ViewerPath = u"Z:\\usr\\bin\\eog"_s;
    prefs.RailSimPath = u"C:\\Program Files\\Rail Simulator"_s;
    prefs.DefaultEditorIsTree = true;
    prefs.ReservedText = u"kept, as it was"_s;
    prefs.AcrobatPath = u""_s;
    const QString line = core::formatPreferences(prefs);
    EXPECT_EQ(line,
              u"12345,-2,32767,-32768,\"C:\\Tools\\paint, the good one.exe\",\"Z:\\usr\\bin\\eog\","
              u"\"C:\\Program Files\\Rail Simulator\",#TRUE#,\"kept, as it was\",\"\"\r\n"_s);
    const std::optional<core::Preferences> back = core::parsePreferences(line);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->width, prefs.width);
    EXPECT_EQ(back->height, prefs.height);
    EXPECT_EQ(back->top, prefs.top);
    EXPECT_EQ(back->left, prefs.left);
    EXPECT_EQ(back->GraphicsEditorPath, prefs.GraphicsEditorPath);
    EXPECT_EQ(back->ViewerPath, prefs.ViewerPath);
    EXPECT_EQ(back->RailSimPath, prefs.RailSimPath);
    EXPECT_EQ(back->DefaultEditorIsTree, prefs.DefaultEditorIsTree);
    EXPECT_EQ(back->ReservedText, prefs.ReservedText);
    EXPECT_EQ(back->AcrobatPath, prefs.AcrobatPath);
}

TEST(Preferences, MalformedFilesGiveDefaultsOrWhatParsed)
{
    for (const QString &text : {u""_s, u"garbage"_s, u"99999,1,1,1"_s, u"\"\"\"\"\","_s}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(core::parsePreferences(text));
    }
    const auto partial = core::parsePreferences(u"1,2,3,4,\"a\",\"b\",\"c\",maybe,\"d\",\"e\""_s);
    ASSERT_TRUE(partial);
    EXPECT_EQ(partial->RailSimPath, u"c"_s);
    EXPECT_FALSE(partial->DefaultEditorIsTree);
    EXPECT_TRUE(partial->AcrobatPath.isEmpty()); // fields after the bad one keep their empty value
}
