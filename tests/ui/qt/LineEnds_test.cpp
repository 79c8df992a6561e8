// Texts and positions between the program's CR LF lines and the editors' bare line feeds.

#include "ui/qt/LineEnds.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(LineEnds, PositionsMapBothWaysAroundLineBreaks)
{
    const QString program = u"ab\r\ncd\r\n\r\ne"_s;
    EXPECT_EQ(uiqt::toEditorText(program), u"ab\ncd\n\ne"_s);
    EXPECT_EQ(uiqt::toProgramText(uiqt::toEditorText(program)), program);
    // Program position -> editor position, at and after each break.
    const std::vector<std::pair<int, int>> pairs{
        {0, 0}, {2, 2}, {4, 3}, {6, 5}, {8, 6}, {10, 7}, {11, 8}};
    for (const auto &[programPos, editorPos] : pairs) {
        SCOPED_TRACE(programPos);
        EXPECT_EQ(uiqt::toEditorPos(program, programPos), editorPos);
        EXPECT_EQ(uiqt::toProgramPos(program, editorPos), programPos);
    }
}
