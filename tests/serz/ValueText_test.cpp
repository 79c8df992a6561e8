#include "TestFiles.h"
#include "serz/Converter.h"

#include <gtest/gtest.h>

using namespace serztest;

namespace
{

constexpr std::string_view declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n";
constexpr std::string_view rootOpen =
    "<cRoot xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\">\r\n";

// A document in the converter's layout with the given lines one level inside the root.
std::string document(const std::vector<std::string> &lines)
{
    std::string out(declaration);
    out += rootOpen;
    for (const std::string &line : lines) {
        out += "\t" + line + "\r\n";
    }
    out += "</cRoot>\r\n";
    return out;
}

class ValueText : public testing::Test
{
protected:
    // XML -> binary -> XML must give the same text back.
    static std::vector<std::byte> expectRoundTrip(const std::string &xml)
    {
        const auto bin = serz::toBinary(xml, {});
        EXPECT_TRUE(bin) << bin.error().describe();
        if (!bin) {
            return {};
        }
        const auto again = serz::toXml(bin.value(), {});
        EXPECT_TRUE(again);
        if (again) {
            EXPECT_EQ(again.value(), xml);
        }
        return bin.value();
    }

    // The payload bytes at the end of a one-value document, before the root's close line.
    static std::string payloadBeforeClose(const std::vector<std::byte> &bin, std::size_t size)
    {
        const std::string all = text(bin);
        const std::size_t closeLine = 4;
        return all.substr(all.size() - closeLine - size, size);
    }
};

} // namespace

TEST_F(ValueText, WorkedExampleEncodesToItsKnownBytes)
{
    const std::string xml = std::string(declaration)
        + "<cDemo xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\" d:id=\"7\">\r\n"
          "\t<UUID>\r\n"
          "\t\t<e d:type=\"sUInt64\">1</e>\r\n"
          "\t\t<e d:type=\"sUInt64\">2</e>\r\n"
          "\t</UUID>\r\n"
          "\t<Name d:type=\"cDeltaString\">a&amp;b</Name>\r\n"
          "\t<Scale d:type=\"sFloat32\" d:alt_encoding=\"000000000000F83F\" "
          "d:precision=\"string\">1.5</Scale>\r\n"
          "\t<Pos d:numElements=\"2\" d:elementType=\"sFloat32\" "
          "d:precision=\"string\">1.0000000 -2.0000000</Pos>\r\n"
          "\t<Empty/>\r\n"
          "</cDemo>\r\n";
    const std::string expected = hex(R"(
        53 45 52 5A 00 00 01 00
        FF 50 FF FF 05 00 00 00 63 44 65 6D 6F 07 00 00 00 05 00 00 00
        FF 50 FF FF 04 00 00 00 55 55 49 44 00 00 00 00 02 00 00 00
        FF 56 FF FF 01 00 00 00 65 FF FF 07 00 00 00 73 55 49 6E 74 36 34
           01 00 00 00 00 00 00 00
        02 02 00 00 00 00 00 00 00
        FF 70 01 00
        FF 56 FF FF 04 00 00 00 4E 61 6D 65
           FF FF 0C 00 00 00 63 44 65 6C 74 61 53 74 72 69 6E 67
           FF FF 03 00 00 00 61 26 62
        FF 56 FF FF 05 00 00 00 53 63 61 6C 65 FF FF 08 00 00 00 73 46 6C 6F 61 74 33 32
           00 00 C0 3F
        FF 41 FF FF 03 00 00 00 50 6F 73 08 00 02 00 00 80 3F 00 00 00 C0
        FF 50 FF FF 05 00 00 00 45 6D 70 74 79 00 00 00 00 00 00 00 00
        FF 70 0A 00
        FF 70 00 00)");
    const auto bin = expectRoundTrip(xml);
    EXPECT_EQ(bin.size(), 213U);
    EXPECT_EQ(text(bin), expected);
}

TEST_F(ValueText, IntegersKeepTheirLimits)
{
    struct Case {
        std::string line;
        std::string payload;
    };

    const Case cases[] = {
        {"<v d:type=\"bool\">253</v>", hex("FD")},
        {"<v d:type=\"sInt8\">-128</v>", hex("80")},
        {"<v d:type=\"sUInt8\">255</v>", hex("FF")},
        {"<v d:type=\"sInt16\">-32768</v>", hex("0080")},
        {"<v d:type=\"sUInt16\">65535</v>", hex("FFFF")},
        {"<v d:type=\"sInt32\">-2147483648</v>", hex("00000080")},
        {"<v d:type=\"sUInt32\">4294967295</v>", hex("FFFFFFFF")},
        {"<v d:type=\"sInt64\">-9223372036854775808</v>", hex("0000000000000080")},
        {"<v d:type=\"sInt64\">9223372036854775807</v>", hex("FFFFFFFFFFFFFF7F")},
        {"<v d:type=\"sUInt64\">18446744073709551615</v>", hex("FFFFFFFFFFFFFFFF")},
        {"<v d:type=\"ref\">-1246836800</v>", hex("C0C7AEB5")},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.line);
        const auto bin = expectRoundTrip(document({c.line}));
        EXPECT_EQ(payloadBeforeClose(bin, c.payload.size()), c.payload);
    }
}

TEST_F(ValueText, FloatsPrintAsTheConverterPrintsThem)
{
    struct Case {
        std::string alt;
        std::string text;
        std::string payload;
    };

    const Case cases[] = {
        {"0000000000406040", "130", hex("00000243")},
        {"000000000000F03F", "1", hex("0000803F")},
        {"0000000000000080", "-0", hex("00000080")},
        {"00000000000000C0", "-2", hex("000000C0")},
        // "%g" is not exact here: the stored value, not the text, gives the bits.
        {"00000020CAC0F33F", "1.23457", hex("51069E3F")},
        {"00000080CC015641", "5.76901e+006", hex("640EB04A")},
        {"00000080CC015641", "5.76901e+06", hex("640EB04A")},
        {"000000E0FFFFEF47", "3.40282e+038", hex("FFFF7F7F")},
        {"000000603B86373F", "0.000358953", hex("DB31BC39")},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        const auto bin =
            serz::toBinary(document({"<v d:type=\"sFloat32\" d:alt_encoding=\"" + c.alt
                                     + "\" d:precision=\"string\">" + c.text + "</v>"}),
                           {});
        ASSERT_TRUE(bin) << bin.error().describe();
        EXPECT_EQ(payloadBeforeClose(bin.value(), 4), c.payload);
    }
    // A double keeps all its digits through d:alt_encoding.
    expectRoundTrip(document({"<d d:type=\"sFloat64\" d:alt_encoding=\"112D4454FB210940\" "
                              "d:precision=\"string\">3.14159</d>"}));
    const std::string tiny = document({"<d d:type=\"sFloat64\" d:alt_encoding=\"0000000000000100\" "
                                       "d:precision=\"string\">1.39067e-309</d>"});
    expectRoundTrip(tiny);
}

TEST_F(ValueText, ArraysOfEveryKind)
{
    expectRoundTrip(document({
        "<Pos d:numElements=\"3\" d:elementType=\"sFloat32\" "
        "d:precision=\"string\">-0.0229516 0.0000000 -0.0000000</Pos>",
        "<Ids d:numElements=\"2\" d:elementType=\"sInt32\">-2147483648 2147483647</Ids>",
        "<Big d:numElements=\"1\" d:elementType=\"sUInt64\">18446744073709551615</Big>",
        "<None d:numElements=\"0\" d:elementType=\"sFloat32\" d:precision=\"string\"></None>",
    }));
}

TEST_F(ValueText, NamesMapBetweenBinaryAndText)
{
    // "::" is printed "-"; "-" is read back as "::"; an empty stored name prints as "e".
    const std::string bin = hex("5345525A 00000100") + hex("FF50 FFFF 0F000000") + "Network::cRoot"
        + "-" + hex("00000000 02000000") + hex("FF56 FFFF 00000000 FFFF 05000000") + "sInt8"
        + hex("01") + hex("FF50 FFFF 0B000000") + "A::B::C_D-E" + hex("00000000 00000000")
        + hex("FF70 0300") + hex("FF70 0000");
    const auto xml = serz::toXml(bytes(bin), {});
    ASSERT_TRUE(xml) << xml.error().describe();
    EXPECT_NE(xml.value().find("<Network-cRoot- xmlns:d="), std::string::npos);
    EXPECT_NE(xml.value().find("\t<e d:type=\"sInt8\">1</e>\r\n"), std::string::npos);
    EXPECT_NE(xml.value().find("\t<A-B-C_D-E/>\r\n"), std::string::npos);

    const auto back = serz::toBinary(xml.value(), {});
    ASSERT_TRUE(back);
    const std::string backText = text(back.value());
    EXPECT_NE(backText.find("Network::cRoot::"), std::string::npos);
    EXPECT_NE(backText.find("A::B::C_D::E"), std::string::npos);
    EXPECT_NE(backText.find(hex("01000000") + "e"), std::string::npos);

    // Through the lossless form every stored name comes back as it was.
    const auto lossless = serz::toXml(bytes(bin), serz::XmlOptions{.lossless = true});
    ASSERT_TRUE(lossless);
    const auto exact = serz::toBinary(lossless.value(), {});
    ASSERT_TRUE(exact);
    EXPECT_EQ(text(exact.value()), bin);
}

TEST_F(ValueText, StringsKeepBothKindsOfNonAsciiText)
{
    // Proper UTF-8, and Windows-1252 bytes stored as U+FF00+b; lengths count characters.
    const std::string czech = "\xC4\x8C"
                              "esk\xC3\xA1 L\xC3\xADpa";
    const std::string oldStyle = "Gr\xEF\xBF\xB6\xEF\xBE\xA0n";
    const auto bin = expectRoundTrip(document({
        "<a d:type=\"cDeltaString\">" + czech + "</a>",
        "<b d:type=\"cDeltaString\">" + oldStyle + "</b>",
        "<c d:type=\"cDeltaString\"></c>",
        "<d d:type=\"cDeltaString\"> &lt;x&gt; &apos;y&apos; &quot;z&quot; &amp;\nline</d>",
    }));
    const std::string all = text(bin);
    EXPECT_NE(all.find(hex("FFFF 0A000000") + czech), std::string::npos);
    EXPECT_NE(all.find(hex("FFFF 05000000") + oldStyle), std::string::npos);
    EXPECT_NE(all.find(hex("FFFF 00000000")), std::string::npos);
}

TEST_F(ValueText, BlobsPrintInRowsOfThirtyTwoBytes)
{
    std::string hexText;
    std::string raw;
    for (int i = 0; i < 77; ++i) {
        raw += static_cast<char>(i * 7);
    }
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (i > 0) {
            hexText += i % 32 == 0 ? "\r\n" : (i % 8 == 0 ? " " : "");
        }
        constexpr const char *digits = "0123456789ABCDEF";
        hexText += digits[static_cast<unsigned char>(raw[i]) >> 4];
        hexText += digits[static_cast<unsigned char>(raw[i]) & 15];
    }
    const auto bin = expectRoundTrip(document({
        "<cImage>",
        "\t<Width d:type=\"sUInt16\">77</Width>",
        "\t<d:blob d:size=\"77\">" + hexText + "</d:blob>",
        "\t<d:blob d:size=\"0\"></d:blob>",
        "</cImage>",
    }));
    // Blobs are not counted among an element's children.
    const std::string all = text(bin);
    EXPECT_NE(all.find("cImage" + hex("00000000 01000000")), std::string::npos);
    EXPECT_NE(all.find(hex("FF42 4D000000") + raw), std::string::npos);
}

TEST_F(ValueText, CacheForgetsShapesAfter255FullLines)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 300; ++i) {
        lines.push_back("<v" + std::to_string(i) + " d:type=\"sInt32\">" + std::to_string(i) + "</v"
                        + std::to_string(i) + ">");
    }
    lines.push_back("<v299 d:type=\"sInt32\">7</v299>");
    lines.push_back("<v0 d:type=\"sInt32\">8</v0>");
    const auto bin = expectRoundTrip(document(lines));
    const std::string all = text(bin);
    // v299 sits in slot 300 mod 255; v0's slot was reused, so it is written in full again.
    const std::string tail = hex("2D 07000000") + hex("FF56 0100 0200 08000000") + hex("FF70 0000");
    EXPECT_EQ(all.substr(all.size() - tail.size()), tail);
}

TEST_F(ValueText, OptionsChangeLineEndsAndExponents)
{
    const std::string bin = hex("5345525A 00000100 FF50 FFFF 01000000") + "r"
        + hex("00000000 01000000 FF56 FFFF 01000000") + "f" + hex("FFFF 08000000") + "sFloat32"
        + hex("640EB04A FF70 0000");
    const auto xml = serz::toXml(
        bytes(bin), serz::XmlOptions{.crlf = false, .exponent = serz::ExponentStyle::TwoDigits});
    ASSERT_TRUE(xml);
    EXPECT_EQ(xml.value().find('\r'), std::string::npos);
    EXPECT_NE(xml.value().find(">5.76901e+06</f>\n"), std::string::npos);
}
