#include "core/HexToDec.h"
#include "core/IsAlphaName.h"
#include "core/NewGuid.h"
#include "core/platform/Failure.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace core;

TEST(HexToDec, ConvertsExactlyBeyondSixtyFourBits)
{
    EXPECT_EQ(HexToDec(u"ff"_s), u"255"_s);
    EXPECT_EQ(HexToDec(u"FF"_s), u"255"_s);
    EXPECT_EQ(HexToDec(u"0"_s), u"0"_s);
    EXPECT_EQ(HexToDec(u"FFFFFFFFFFFFFFFF"_s), u"18446744073709551615"_s);
    EXPECT_EQ(HexToDec(u"FFFFFFFFFFFFFFFFFFFF"_s), u"1208925819614629174706175"_s);
    EXPECT_EQ(HexToDec(u"ffffffffffffffffffffffff"_s), u"79228162514264337593543950335"_s);
}

TEST(HexToDec, OtherLettersGiveEmptyTextAndTooManyDigitsOverflow)
{
    EXPECT_EQ(HexToDec(u"fg"_s), QString());
    EXPECT_EQ(HexToDec(u"12 3"_s), QString());
    EXPECT_EQ(HexToDec(u"-1"_s), QString());
    try {
        (void)HexToDec(u"1000000000000000000000000"_s);
        FAIL() << "no overflow";
    } catch (const platform::Failure &failure) {
        EXPECT_EQ(failure.number(), 6);
    }
}

TEST(IsAlphaName, LettersAndAFewMarksOnly)
{
    for (const QString &name : {u"Smith"_s, u"O'Brien"_s, u"St.-Pierre"_s, u"\"Q\",$"_s}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_TRUE(IsAlphaName(name));
    }
    for (const QString &name : {u""_s, u"Class 47"_s, u"Two Words"_s, u"R2"_s, u"Jos\u00e9"_s}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(IsAlphaName(name));
    }
}

TEST(NewGuid, NumbersDropThePartsLeadingZeros)
{
    const QUuid guid(0x0A0B0C0D, 0x00EF, 0x0123, 0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0x0F);
    QString first;
    QString second;
    EXPECT_EQ(GuidForms(guid, first, second), u"0A0B0C0D-00EF-0123-0123-456789ABCD0F"_s);
    EXPECT_EQ(first, u"20061692300301"_s); // "123" + "EF" + "A0B0C0D"
    EXPECT_EQ(second, u"71172180464128561"_s); // "F" "CD" "AB" "89" "67" "45" "23" "1"

    const QString text = NewGuid(first, second);
    EXPECT_EQ(text.size(), 36);
    EXPECT_EQ(text, text.toUpper());
    EXPECT_FALSE(first.isEmpty());
    EXPECT_FALSE(second.isEmpty());
}
