#include "textures/HeaderFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(HeaderFile, IsWrittenOneItemALineAndReadBackWithQuotesRestored)
{
    textures::HeaderFile header;
    header.pieces = {u"<?xml version=\"1.0\"?>\r\n<d:blob d:size=\"8\">"_s,
                     u"</d:blob>\r\n<Name>#1 \"main\"</Name>\r\n<d:blob d:size=\"8\">"_s,
                     u"</d:blob>\r\n"_s};
    header.sizes = {8, 8};
    header.originalPath = u"C:\\Rail Simulator\\Assets\\a b.TgPcDx"_s;

    const QString text = textures::headerFileText(header);
    EXPECT_TRUE(text.startsWith(u"2\r\n\"<?xml version=#1.0#?>\r\n<d:blob d:size=#8#>\"\r\n"_s));
    EXPECT_TRUE(text.endsWith(u"\r\n8\r\n8\r\n\"C:\\Rail Simulator\\Assets\\a b.TgPcDx\"\r\n"_s));
    EXPECT_EQ(text.count(u'"'), 2 * 4);

    const std::optional<textures::HeaderFile> back = textures::parseHeaderFile(text);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->sizes, header.sizes);
    EXPECT_EQ(back->originalPath, header.originalPath);
    // A "#" of the texture's own text comes back as a double quote: the mark is not escaped.
    EXPECT_EQ(back->pieces[1],
              u"</d:blob>\r\n<Name>\"1 \"main\"</Name>\r\n<d:blob d:size=\"8\">"_s);
    EXPECT_EQ(back->pieces[0], header.pieces[0]);
}

TEST(HeaderFile, DamagedFilesAreNotRead)
{
    const QString good = u"1\r\n\"a>\"\r\n\"</d:blob>b\"\r\n8\r\n\"C:\\t.TgPcDx\"\r\n"_s;
    ASSERT_TRUE(textures::parseHeaderFile(good).has_value());
    const QList<std::pair<const char *, QString>> damaged{
        {"empty", QString()},
        {"no count", u"x\r\n"_s + good.mid(3)},
        {"count of 17", u"17"_s + good.mid(1)},
        {"count of 0", u"0"_s + good.mid(1)},
        {"piece missing", u"2"_s + good.mid(1)},
        {"size missing", good.left(good.indexOf(u"8\r\n"_s)) + u"\"C:\\t.TgPcDx\"\r\n"_s},
        {"size not a number", QString(good).replace(u"8\r\n"_s, u"eight\r\n"_s)},
        {"path missing", good.left(good.indexOf(u"\"C:"_s))},
        {"path unterminated", good.left(good.size() - 3)},
        {"cut in a piece", good.left(8)},
        {"text left over", good + u"\"more\"\r\n"_s},
    };
    for (const auto &[name, text] : damaged) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(textures::parseHeaderFile(text).has_value());
    }
}
