#include "TestFiles.h"
#include "serz/BinaryReader.h"
#include "serz/Converter.h"

#include <gtest/gtest.h>
#include <random>

using namespace serztest;

namespace
{

const std::string header = hex("5345525A 00000100");

// Root "r" with one sInt32 child: the smallest complete document.
const std::string minimal = header + hex("FF50 FFFF 01000000") + "r" + hex("00000000 01000000")
    + hex("FF56 FFFF 01000000") + "v" + hex("FFFF 06000000") + "sInt32" + hex("05000000")
    + hex("FF70 0000");

serz::Error errorOf(const std::string &bin)
{
    const auto xml = serz::toXml(bytes(bin), {});
    EXPECT_FALSE(xml);
    return xml ? serz::Error{} : xml.error();
}

} // namespace

TEST(BadBinary, EachFaultIsNamedWithItsOffset)
{
    struct Case {
        const char *what;
        std::string bin;
        std::size_t offset;
        const char *message;
    };

    const Case cases[] = {
        {"no header", "SER", 0, "not a SERZ binary"},
        {"wrong magic", "SERX" + hex("00000100") + minimal.substr(8), 0, "not a SERZ binary"},
        {"header only", header, 8, "no root element"},
        {"unknown kind byte", header + hex("FF 99"), 9, "unknown kind byte 0x99"},
        {"string length beyond the end",
         header + hex("FF50 FFFF 10000000") + "abc",
         10,
         "runs past the end"},
        {"string index never defined",
         header + hex("FF50 0500"),
         10,
         "string index 5 was never defined"},
        {"empty cache slot", header + hex("07"), 8, "cache slot 7"},
        {"unknown value type",
         header + hex("FF50 FFFF 01000000") + "r" + hex("0000000000000000")
             + hex("FF56 0000 FFFF 03000000") + "int",
         29,
         "unknown value type \"int\""},
        {"close of another element",
         header + hex("FF50 FFFF 01000000") + "r" + hex("0000000000000000 FF70 FFFF 01000000")
             + "x",
         25,
         "does not match"},
        {"value before the root", header + hex("FF4E"), 8, "outside the root"},
        {"token after the root", minimal + hex("FF4E"), minimal.size(), "after the root"},
        {"blob longer than the file",
         header + hex("FF50 FFFF 01000000") + "r" + hex("0000000000000000 FF42 FFFFFF7F 00"),
         31,
         "ends inside a token"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const serz::Error error = errorOf(c.bin);
        EXPECT_EQ(error.offset, c.offset);
        EXPECT_NE(error.message.find(c.message), std::string::npos) << error.message;
        EXPECT_EQ(error.describe().find('\n'), std::string::npos);
    }
}

TEST(BadBinary, EveryCutOfARealFileIsRefused)
{
    const auto path = samplesDir() / "PilsenSpotter+obsluha_brniste/Scenery/+000007+000000.bin";
    if (!std::filesystem::exists(path)) {
        GTEST_SKIP() << "samples not found";
    }
    const std::vector<std::byte> whole = readBytes(path);
    ASSERT_TRUE(serz::toXml(whole, {}));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto xml = serz::toXml(std::span(whole).first(size), {});
        ASSERT_FALSE(xml) << "cut at " << size;
        EXPECT_LE(xml.error().offset, size);
    }
}

TEST(BadBinary, RandomBytesAfterTheHeaderNeverCrash)
{
    std::mt19937 random(20240611);
    std::size_t refused = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string bin = header;
        const std::size_t size = random() % 200;
        for (std::size_t i = 0; i < size; ++i) {
            bin += static_cast<char>(random() & 0xFF);
        }
        refused += serz::toXml(bytes(bin), {}) ? 0U : 1U;
    }
    EXPECT_GT(refused, 2900U);
}

TEST(BadBinary, ValidPrefixesOfStructureAreStillChecked)
{
    // A file cut right after a complete token: structure, not bytes, tells it is short.
    const std::string cut = minimal.substr(0, minimal.size() - 4);
    const serz::Error error = errorOf(cut);
    EXPECT_NE(error.message.find("file ends inside element <r>"), std::string::npos);
    ASSERT_TRUE(serz::toXml(bytes(minimal), {}));
}
