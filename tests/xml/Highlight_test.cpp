#include "ui/RichText.h"
#include "xml/Highlight.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const QString P0 = u"\\plain\\f2\\fs22\\cf0 "_s;
const QString P1 = u"\\plain\\f2\\fs22\\cf1 "_s;
const QString P2 = u"\\plain\\f2\\fs22\\cf2 "_s;
const QString P3 = u"\\plain\\f2\\fs22\\cf3 "_s;

// The colour the box shows at a position, -1 for none.
int colourAt(const ui::RichText &box, int position)
{
    for (const ui::TextRun &run : box.runs()) {
        if (position >= run.start && position < run.start + run.length) {
            return run.color;
        }
    }
    return -1;
}

} // namespace

TEST(Highlight, ColoursTagsAttributesAndEscapesTheRichTextMarks)
{
    const QString text = u"<a x=\"1\">{ k = 2}</a>\r\n<!-- c -->"_s;
    const QString expected =
        u"{\\richtextbox1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans "
        u"Serif;}"
        u"{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss MS Sans Serif;}}\r\n"
        u"{\\colortbl\\red0\\green0\\blue0;\\red192\\green0\\blue0;\\red192\\green0\\blue192;"
        u"\\red0\\green192\\blue0;\\red128\\green128\\blue128}\r\n"
        u"\\deflang1033\\pard\\plain\\f0\\fs22 "_s
        + P0 + P1 + u"<a"_s + P2 + u" x="_s + P3 + u"\"1\""_s + P1 + u">"_s + P0 + u"\\{"_s + P2
        + u" k = "_s + P3 + u"2"_s + P1 + u"\\}"_s + P1 + u"</a>"_s + P0 + u"\\par \\r\n"_s + P1
        + u"<!-- c -->"_s + P0 + u"\r\n\\par \\plain\\f2\\fs22\\cf0\\par }"_s;
    EXPECT_EQ(xml::colorhtml(text), expected);
}

TEST(Highlight, TheLoadedBoxShowsTheTextUnchangedInItsColours)
{
    ui::RichText box;
    box.setTextRtf(xml::colorhtml(u"<a x=\"1\">{ k = 2}</a>\r\n<!-- c -->"_s));
    xml::correctHighlight(box);
    EXPECT_TRUE(box.text().startsWith(u"<a x=\"1\">{ k = 2}</a>\r\n<!-- c -->\r\n"_s));
    const int red = 0x0000C0;
    const int purple = 0xC000C0;
    const int green = 0x00C000;
    EXPECT_EQ(colourAt(box, 0), red); // <a
    EXPECT_EQ(colourAt(box, 3), purple); // x=
    EXPECT_EQ(colourAt(box, 5), green); // "1"
    EXPECT_EQ(colourAt(box, 8), red); // >
    // Element text with "=" goes back to plain, although the attribute rule coloured it.
    for (int at = 9; at < 17; ++at) {
        SCOPED_TRACE(at);
        EXPECT_EQ(colourAt(box, at), 0);
    }
    EXPECT_EQ(colourAt(box, 17), red); // </a>
    EXPECT_EQ(colourAt(box, 23), 0x808080); // the comment
    EXPECT_EQ(colourAt(box, 32), 0x808080);
}

TEST(Highlight, ReplacementsFollowTheRegularExpressionRules)
{
    EXPECT_EQ(xml::ReplaceText(u"(B)(c)"_s, u"[$2$1$$$&]"_s, u"abcABC"_s), u"a[cb$bc]A[CB$BC]"_s);
    EXPECT_EQ(xml::ReplaceText(u"x"_s, u"y"_s, u""_s), u""_s);
    EXPECT_EQ(xml::fcnGetRTFColor(u"C000C0"_s), u"\\red192\\green0\\blue192"_s);
    EXPECT_EQ(xml::fcnGetRTFColor(0x80), u"\\red0\\green0\\blue128"_s);
}

TEST(Highlight, BackslashesAndBracesInTextSurvive)
{
    ui::RichText box;
    box.setTextRtf(xml::colorhtml(u"<p>C:\\a\\{b}</p>"_s));
    EXPECT_TRUE(box.text().startsWith(u"<p>C:\\a\\{b}</p>"_s));
}

TEST(Highlight, OneHugeLineOfWordsIsHighlighted)
{
    // Words and blanks without "=" are what the attribute rule scans longest for.
    QString line;
    for (int i = 0; i < 200000; ++i) {
        line += u"word "_s;
    }
    const QString text = u"<a b=\"1\">"_s + line + u"</a>"_s;
    ui::RichText box;
    box.setTextRtf(xml::colorhtml(text));
    xml::correctHighlight(box);
    EXPECT_TRUE(box.text().startsWith(text));
}
