#include "TestFiles.h"
#include "serz/Converter.h"

#include <gtest/gtest.h>

using namespace serztest;

namespace
{

// The converter's text for a small object, CR LF line ends.
const std::string original =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
    "<cObj xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\" "
    "d:id=\"42\">\r\n"
    "\t<Name d:type=\"cDeltaString\">R&amp;D</Name>\r\n"
    "\t<Speed d:type=\"sFloat32\" d:alt_encoding=\"00000020CAC0F33F\" "
    "d:precision=\"string\">1.23457</Speed>\r\n"
    "\t<Pos d:numElements=\"2\" d:elementType=\"sFloat32\" "
    "d:precision=\"string\">1.5000000 -2.0000000</Pos>\r\n"
    "\t<Next>\r\n"
    "\t\t<d:nil/>\r\n"
    "\t</Next>\r\n"
    "\t<Target d:type=\"ref\">42</Target>\r\n"
    "</cObj>\r\n";

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) {
        text.replace(at, from.size(), to);
    }
    return text;
}

class XmlEditing : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto bin = serz::toBinary(original, {});
        ASSERT_TRUE(bin) << bin.error().describe();
        m_binary = bin.value();
    }

    // The binary an edited text gives, or an empty vector with the failure recorded.
    static std::vector<std::byte> binaryOf(const std::string &xml)
    {
        const auto bin = serz::toBinary(xml, {});
        EXPECT_TRUE(bin) << bin.error().describe();
        return bin ? bin.value() : std::vector<std::byte>{};
    }

    static std::string xmlOf(const std::vector<std::byte> &bin)
    {
        const auto xml = serz::toXml(bin, {});
        EXPECT_TRUE(xml);
        return xml ? xml.value() : std::string();
    }

    std::vector<std::byte> m_binary;
};

} // namespace

TEST_F(XmlEditing, EditsThatKeepTheContentGiveTheSameBinary)
{
    struct Case {
        const char *what;
        std::string xml;
    };

    std::string reindented;
    for (const char c : withoutCr(original)) {
        if (c != '\t') {
            reindented += c;
        }
        if (c == '\n') {
            reindented += "    ";
        }
    }
    const Case cases[] = {
        {"LF line ends", withoutCr(original)},
        {"spaces instead of tabs", reindented},
        {"all on one line", replaced(withoutCr(original), "\n\t<Name", "<Name")},
        {"attributes reordered",
         replaced(
             original,
             "d:type=\"sFloat32\" d:alt_encoding=\"00000020CAC0F33F\" d:precision=\"string\"",
             "d:precision=\"string\" d:alt_encoding=\"00000020CAC0F33F\" d:type=\"sFloat32\"")},
        {"character references", replaced(original, "R&amp;D", "&#82;&#x26;D")},
        {"CDATA", replaced(original, "R&amp;D", "<![CDATA[R&D]]>")},
        {"comments", replaced(original, "\t<Next>", "<!-- edited by hand -->\t<Next><!-- x -->")},
        {"self-closed nil spelled out", replaced(original, "<d:nil/>", "<d:nil></d:nil>")},
        {"no BOM, but a BOM added", "\xEF\xBB\xBF" + original},
        {"array separated by several blanks",
         replaced(original, "1.5000000 -2.0000000", " 1.5\t\t-2 ")},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(binaryOf(c.xml), m_binary);
    }
}

TEST_F(XmlEditing, AltEncodingIsUsedOnlyWhileTheTextStillMatchesIt)
{
    // Missing: the number comes from the text, so the six printed digits are all that is left.
    const std::string noAlt = replaced(original, " d:alt_encoding=\"00000020CAC0F33F\"", "");
    EXPECT_NE(xmlOf(binaryOf(noAlt)).find("d:alt_encoding=\"00000080CCC0F33F\""),
              std::string::npos);

    // Unchanged text beside the stored value: the stored value wins, exactly.
    EXPECT_EQ(xmlOf(binaryOf(original)), original);

    // Text edited beside a stale stored value: the text wins.
    const std::string edited = replaced(original, ">1.23457<", ">2.5<");
    const std::string back = xmlOf(binaryOf(edited));
    EXPECT_NE(back.find("d:alt_encoding=\"0000000000000440\" d:precision=\"string\">2.5<"),
              std::string::npos);

    // The stored value is ignored when it is not a number at all.
    const std::string broken = replaced(original, "00000020CAC0F33F", "XYZ");
    EXPECT_NE(xmlOf(binaryOf(broken)).find(">1.23457</Speed>"), std::string::npos);
}

TEST_F(XmlEditing, ChildCountsFollowTheEditedText)
{
    const std::string more =
        replaced(original, "\t<Target", "\t<Extra d:type=\"bool\">1</Extra>\r\n\t<Target");
    const std::string bin = text(binaryOf(more));
    // id 42, now six children.
    EXPECT_NE(bin.find("cObj" + hex("2A000000 06000000")), std::string::npos);
}

TEST_F(XmlEditing, BadTextIsRefusedWithItsLineAndColumn)
{
    struct Case {
        const char *what;
        std::string xml;
        int line;
        const char *message;
    };

    const Case cases[] = {
        {"unclosed element", replaced(original, "\t</Next>\r\n", ""), 9, "mismatched tag"},
        {"unknown type",
         replaced(original, "\"cDeltaString\"", "\"cDeltaStrung\""),
         3,
         "unknown type \"cDeltaStrung\""},
        {"unknown array type",
         replaced(original, "d:elementType=\"sFloat32\"", "d:elementType=\"x\""),
         5,
         "unknown element type"},
        {"number that does not parse",
         replaced(original, ">1.23457<", ">1.2.3<"),
         4,
         "is not a sFloat32"},
        {"integer out of range",
         replaced(original, ">42</Target>", ">4294967296</Target>"),
         9,
         "is not"},
        {"array element", replaced(original, "-2.0000000", "-2.0x"), 5, "is not a sFloat32"},
        {"bad id", replaced(original, "d:id=\"42\"", "d:id=\"forty\""), 2, "d:id"},
        {"text between elements",
         replaced(original, "\t<Next>", "\tstray<Next>"),
         6,
         "text outside a value"},
        {"element inside a value", replaced(original, "R&amp;D", "<b/>"), 3, "inside a value"},
        {"blob of the wrong size",
         replaced(original, "\t<Target", "\t<d:blob d:size=\"3\">0102</d:blob>\r\n\t<Target"),
         9,
         "d:size"},
        {"blob with a non-hex digit",
         replaced(original, "\t<Target", "\t<d:blob d:size=\"1\">0G</d:blob>\r\n\t<Target"),
         9,
         "hex"},
        {"a value as root", "<v d:type=\"bool\">1</v>", 1, "root"},
        {"no document", "", 1, ""},
        {"undefined entity", replaced(original, "R&amp;D", "R&nbsp;D"), 3, "undefined entity"},
        {"reference to character zero",
         replaced(original, "R&amp;D", "&#0;"),
         3,
         "invalid character number"},
        {"unterminated reference", replaced(original, "R&amp;D", "R&amp D"), 3, "not well-formed"},
        {"duplicate attribute",
         replaced(original, "d:id=\"42\"", "d:id=\"42\" d:id=\"43\""),
         2,
         "duplicate attribute"},
        {"unquoted attribute", replaced(original, "d:id=\"42\"", "d:id=42"), 2, "quoted"},
        {"'<' in an attribute", replaced(original, "d:id=\"42\"", "d:id=\"<\""), 2, "'<'"},
        {"attributes run together",
         replaced(original, "d:version=\"1.0\" d:id", "d:version=\"1.0\"d:id"),
         2,
         "invalid token"},
        {"DOCTYPE", replaced(original, "<cObj", "<!DOCTYPE cObj>\r\n<cObj"), 2, "DOCTYPE"},
        {"unclosed comment", replaced(original, "\t<Next>", "<!-- open\t<Next>"), 6, "unclosed"},
        {"second root", original + "<again/>", 11, "junk after document element"},
        {"declaration later on",
         replaced(original, "\t<Next>", "<?xml version=\"1.0\"?><Next>"),
         6,
         "declaration"},
        {"cut short", original.substr(0, original.size() - 9), 10, "no closing tag for <cObj>"},
        // Found by fuzzing: the binary counts characters, so a cut sequence has no end there.
        {"string ending inside a character",
         replaced(original, "R&amp;D", "R\xC5"),
         3,
         "ends inside a UTF-8 character"},
        {"tag cut short", original.substr(0, 60), 2, "unclosed token"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const auto bin = serz::toBinary(c.xml, {});
        ASSERT_FALSE(bin);
        EXPECT_EQ(bin.error().line, c.line);
        EXPECT_GT(bin.error().column, 0);
        EXPECT_NE(bin.error().message.find(c.message), std::string::npos) << bin.error().message;
        EXPECT_EQ(bin.error().describe().find('\n'), std::string::npos);
    }
}

TEST_F(XmlEditing, ControlBytesInStringsSurviveTheText)
{
    // Game saves hold a NUL inside a name; XML cannot carry it, the converter prints it raw.
    const std::string withNul = replaced(original, "R&amp;D", std::string("\0S R1", 5));
    const auto bin = binaryOf(withNul);
    EXPECT_NE(text(bin).find(hex("FFFF 05000000") + std::string("\0S R1", 5)), std::string::npos);
    EXPECT_EQ(xmlOf(bin), withNul);
}
