// The rich text reader on the kind of rich text the highlighter makes.

#include "ui/RtfReader.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RtfReader, ReadsColourTableRunsAndEscapes)
{
    const QString rtf = uR"({\rtf1\ansi{\fonttbl{\f0\fswiss MS Sans Serif;}}
{\colortbl\red0\green0\blue0;\red0\green0\blue192;}
\plain\f2\fs22\cf1 <a>\plain\f2\fs22\cf0 x\{y\}\\z\par
\'e9\par })"_s;
    const ui::RichTextContent content = ui::readRtf(rtf);
    EXPECT_EQ(content.text, u"<a>x{y}\\z\r\n\u00e9\r\n"_s);
    ASSERT_GE(content.runs.size(), 2);
    EXPECT_EQ(content.runs[0].start, 0);
    EXPECT_EQ(content.runs[0].length, 3);
    EXPECT_EQ(content.runs[0].color, 0xC00000);
    EXPECT_EQ(content.runs[1].color, 0x000000);
}

TEST(RtfReader, UnbalancedInputNeverThrows)
{
    for (const QString &rtf : {u"{{{"_s, u"}}}"_s, u"\\"_s, u"\\'"_s, u"{\\colortbl\\red"_s}) {
        SCOPED_TRACE(rtf.toStdString());
        EXPECT_NO_THROW(ui::readRtf(rtf));
    }
}
