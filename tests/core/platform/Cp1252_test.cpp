#include "core/platform/Cp1252.h"
#include "core/platform/Utf16Le.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::Cp1252;
using platform::Utf16Le;

TEST(Cp1252, EveryByteSurvivesARoundTrip)
{
    QByteArray all;
    for (int b = 0; b < 256; ++b) {
        all.append(static_cast<char>(b));
    }
    const QString text = Cp1252::decode(all);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(Cp1252::encode(text), all);
}

TEST(Cp1252, DecodesTheCodePagesOwnCharacters)
{
    EXPECT_EQ(Cp1252::decode("\x80\x85\x99\x9F\xE9"), u"\u20AC\u2026\u2122\u0178\u00E9"_s);
    // The five unassigned bytes stand for the controls of the same number.
    EXPECT_EQ(Cp1252::decode("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D"_s);
}

TEST(Cp1252, CharactersOutsideTheCodePageBecomeQuestionMarks)
{
    EXPECT_EQ(Cp1252::encode(u"a\u0100b\u0080c"_s), QByteArray("a?b?c"));
    EXPECT_EQ(Cp1252::encode(u"x\U0001F600y"_s), QByteArray("x?y"));
}

TEST(Utf16Le, SkipsTheByteOrderMarkAndWritesIt)
{
    const QByteArray bytes("\xFF\xFE"
                           "A\0\xAC\x20",
                           6);
    EXPECT_EQ(Utf16Le::decode(bytes), u"A\u20AC"_s);
    EXPECT_EQ(Utf16Le::encode(u"A\u20AC"_s), bytes);
    EXPECT_EQ(Utf16Le::encode(u"A"_s, Utf16Le::Bom::Omit), QByteArray("A\0", 2));
    EXPECT_EQ(Utf16Le::decode(QByteArray("A\0B", 3)), u"A"_s);
}
