#include "TestFiles.h"
#include "serz/BinaryReader.h"
#include "serz/Converter.h"
#include "serz/RoundTripCheck.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

using namespace serztest;
namespace fs = std::filesystem;

namespace
{

std::vector<fs::path> samplesWhere(bool binary)
{
    std::vector<fs::path> out;
    for (const auto &entry : fs::recursive_directory_iterator(samplesDir())) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const std::string head = readText(entry.path()).substr(0, 5);
        if (binary ? head.starts_with("SERZ") : head.starts_with("<?xml")) {
            out.push_back(entry.path());
        }
    }
    std::sort(out.begin(), out.end());
    return out;
}

class SampleRoundTrip : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!haveSamples()) {
            GTEST_SKIP() << "samples not found";
        }
    }
};

} // namespace

TEST_F(SampleRoundTrip, ConverterXmlIsReproducedFromItsBinary)
{
    struct Pair {
        const char *binary;
        const char *xml;
        serz::ExponentStyle exponent;
    };

    const Pair pairs[] = {
        {"JoelCrosby+Railworks-Forge/+000000+000000.bin",
         "JoelCrosby+Railworks-Forge/+000000+000000.bin.xml",
         serz::ExponentStyle::ThreeDigits},
        {"JoelCrosby+Railworks-Forge/Scenario.bin",
         "JoelCrosby+Railworks-Forge/Scenario.bin.xml",
         serz::ExponentStyle::TwoDigits},
        {"JoelCrosby+Railworks-Forge/ScenarioNetworkProperties.bin",
         "JoelCrosby+Railworks-Forge/ScenarioNetworkProperties.bin.xml",
         serz::ExponentStyle::ThreeDigits},
        {"JoelCrosby+Railworks-Forge/ScenaryItem.bin",
         "JoelCrosby+Railworks-Forge/ScenaryItem.bin.xml",
         serz::ExponentStyle::ThreeDigits},
        {"ElPerenza+VSCode-serz/bin-test.bin",
         "ElPerenza+VSCode-serz/xml-test.xml",
         serz::ExponentStyle::ThreeDigits},
        {"ElPerenza+VSCode-serz/geo-test.GeoPcDx",
         "ElPerenza+VSCode-serz/xml-test.xml",
         serz::ExponentStyle::ThreeDigits},
    };
    for (const Pair &pair : pairs) {
        SCOPED_TRACE(pair.binary);
        const auto xml = serz::toXml(readBytes(samplesDir() / pair.binary),
                                     serz::XmlOptions{.exponent = pair.exponent});
        ASSERT_TRUE(xml) << xml.error().describe();
        // The stored copies passed through git, which made their line ends LF.
        EXPECT_EQ(withoutCr(xml.value()), withoutCr(readText(samplesDir() / pair.xml)));
        EXPECT_NE(xml.value().find("?>\r\n<"), std::string::npos);
    }
}

TEST_F(SampleRoundTrip, ConverterBinariesComeBackByteForByte)
{
    const auto fromXml =
        serz::toBinary(readText(samplesDir() / "ElPerenza+VSCode-serz/xml-test.xml"), {});
    ASSERT_TRUE(fromXml) << fromXml.error().describe();
    EXPECT_EQ(fromXml.value(), readBytes(samplesDir() / "ElPerenza+VSCode-serz/bin-test.bin"));

    // Written by the converter for another tool, no XML kept: through our own XML.
    const auto original = readBytes(
        samplesDir() / "PilsenSpotter+obsluha_brniste/ScenarioBackup-20250531-193540.bin");
    const auto xml = serz::toXml(original, {});
    ASSERT_TRUE(xml);
    const auto back = serz::toBinary(xml.value(), {});
    ASSERT_TRUE(back);
    EXPECT_EQ(back.value(), original);
}

TEST_F(SampleRoundTrip, EveryXmlGoesThroughBinaryUnchanged)
{
    const std::regex threeDigits("e[+-][0-9]{3}<");
    const auto files = samplesWhere(false);
    EXPECT_GE(files.size(), 13U);
    for (const fs::path &file : files) {
        SCOPED_TRACE(file.string());
        const std::string original = readText(file);
        const auto bin = serz::toBinary(original, {});
        ASSERT_TRUE(bin) << bin.error().describe();
        const serz::XmlOptions options{.crlf = original.find("\r\n") != std::string::npos,
                                       .exponent = std::regex_search(original, threeDigits)
                                           ? serz::ExponentStyle::ThreeDigits
                                           : serz::ExponentStyle::TwoDigits};
        const auto again = serz::toXml(bin.value(), options);
        ASSERT_TRUE(again);
        EXPECT_EQ(again.value(), original);
    }
}

// Six game files cache lines by the member being saved rather than by name; text cannot carry
// that choice, so they come back equal in content but not in bytes.
TEST_F(SampleRoundTrip, GameBinariesAreStableAndComeBackThroughLosslessXml)
{
    const std::set<std::string> cachedByMember = {
        "ArcanoxDragon+RailWorks-CTA-Route/Networks/Tracks.bin",
        "ArcanoxDragon+RailWorks-CTA-Route/Scenarios/cd75d0be-d418-4272-8af9-b974d1d623d9/"
        "CurrentSave_wtfderailed.bin",
        "Kai8090+Erzbachbahn/Scenarios/5ef15fc7-d3a6-4606-b447-b8ce6d878651/CurrentSave.bin",
        "PilsenSpotter+obsluha_brniste/InitialSave.bin",
        "Sharpe49+ReseauParisEst/Networks/Tracks.bin",
        "Sharpe49+ReseauParisEst/Scenarios/f4063adc-12bc-4549-9303-cbd38ff0daa5/InitialSave.bin",
    };
    const auto files = samplesWhere(true);
    EXPECT_EQ(files.size(), 32U);
    for (const fs::path &file : files) {
        const std::string rel = fs::relative(file, samplesDir()).generic_string();
        SCOPED_TRACE(rel);
        const auto report = serz::checkRoundTrip(readBytes(file));
        ASSERT_TRUE(report) << report.error().describe();
        EXPECT_TRUE(report.value().stable);
        EXPECT_TRUE(report.value().contentSame);
        EXPECT_EQ(report.value().losslessSame, !cachedByMember.contains(rel));
    }
}

TEST_F(SampleRoundTrip, LosslessXmlKeepsRecordsAndStoredNames)
{
    const auto save = readBytes(
        samplesDir()
        / "ArcanoxDragon+RailWorks-CTA-Route/Scenarios/cd75d0be-d418-4272-8af9-b974d1d623d9/"
          "CurrentSave_wtfderailed.bin");
    const auto report = serz::checkRoundTrip(save);
    ASSERT_TRUE(report);
    EXPECT_EQ(report.value().records, 545U);
    EXPECT_EQ(report.value().dashedNames, 1U);

    const auto xml = serz::toXml(save, serz::XmlOptions{.lossless = true});
    ASSERT_TRUE(xml);
    EXPECT_NE(xml.value().find("<?serz-anonymous \"\"?>\r\n"), std::string::npos);
    EXPECT_NE(xml.value().find("\t<?serz-record 00 "), std::string::npos);
    EXPECT_NE(xml.value().find("<?serz-name \"Scenario_"), std::string::npos);
    // Plain text is what the converter writes: none of our marks.
    const auto plain = serz::toXml(save, {});
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain.value().find("<?serz"), std::string::npos);
}
