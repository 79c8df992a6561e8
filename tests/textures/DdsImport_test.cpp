#include "TextureSamples.h"
#include "serz/Converter.h"
#include "textures/DdsExport.h"
#include "textures/DdsImport.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using texturetest::blobDigits;
using texturetest::makeTexture;
using texturetest::outsideBlobs;

namespace
{

const QString dxt1 = u"HC_IMAGE_FORMAT_COMPRESSED"_s;
const QString dxt3 = u"HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA"_s;

// To .dds and its header file, the header file read back, and the .dds spliced into it.
QString roundTrip(const QString &xml)
{
    platform::Result<textures::DdsExport> dds = textures::exportDds(xml, u"C:\\t.TgPcDx"_s);
    EXPECT_TRUE(dds.ok());
    const std::optional<textures::HeaderFile> header =
        textures::parseHeaderFile(textures::headerFileText(dds.value().header));
    EXPECT_TRUE(header.has_value());
    platform::Result<QString> back = textures::importDds(*header, dds.value().dds, u"t.dds"_s);
    EXPECT_TRUE(back.ok()) << back.error().description.toStdString();
    return back.ok() ? back.value() : QString();
}

std::vector<std::byte> toBinary(const QString &xml)
{
    serz::Result<std::vector<std::byte>> bin = serz::toBinary(xml.toStdString(), {});
    EXPECT_TRUE(bin.ok()) << (bin.ok() ? "" : bin.error().describe());
    return bin.ok() ? bin.value() : std::vector<std::byte>();
}

textures::HeaderFile headerOf(const QString &xml)
{
    return textures::exportDds(xml, u"C:\\t.TgPcDx"_s).value().header;
}

} // namespace

TEST(DdsImport, AnUnchangedSampleComesBackAsTheSameTextApartFromLineLayout)
{
    QFile file(texturetest::ra12Xml());
    if (!file.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "samples not found";
    }
    const QString original = QString::fromUtf8(file.readAll());
    const QString back = roundTrip(original);
    EXPECT_EQ(blobDigits(back), blobDigits(original));
    EXPECT_EQ(outsideBlobs(back), outsideBlobs(original));
    EXPECT_FALSE(back.contains(u"\n</d:blob"_s));
}

TEST(DdsImport, AGameTextureComesBackAsABinaryOfTheSameContent)
{
    const QByteArray original = texturetest::readHostFile(texturetest::tileTexture());
    if (original.isEmpty()) {
        GTEST_SKIP() << "samples not found";
    }
    const auto *raw = reinterpret_cast<const std::byte *>(original.constData());
    serz::Result<std::string> xml = serz::toXml({raw, size_t(original.size())}, {});
    ASSERT_TRUE(xml.ok());
    const std::vector<std::byte> back = toBinary(roundTrip(QString::fromStdString(xml.value())));
    serz::Result<std::string> backXml = serz::toXml(back, {});
    ASSERT_TRUE(backXml.ok());
    EXPECT_EQ(backXml.value(), xml.value());
}

TEST(DdsImport, MadeTexturesOfEachFormatConvertToTheSameBinary)
{
    const QList<texturetest::MadeTexture> made{
        makeTexture(dxt1, 128, 64),
        makeTexture(dxt3, 64, 64),
        makeTexture(u"HC_IMAGE_FORMAT_COLA8888"_s, 16, 16, 3),
        makeTexture(u"HC_IMAGE_FORMAT_COL888"_s, 8, 8, 1),
    };
    for (const texturetest::MadeTexture &texture : made) {
        SCOPED_TRACE(texture.xml.section(u"<Format"_s, 1, 1).left(60).toStdString());
        const QString back = roundTrip(texture.xml);
        EXPECT_EQ(blobDigits(back), blobDigits(texture.xml));
        EXPECT_EQ(toBinary(back), toBinary(texture.xml));
    }
}

TEST(DdsImport, LevelsAreWrittenInWholeLinesUpToTheDataEnd)
{
    // 48 bytes, then 8: the first level's size is reached only at the end of its second line, so
    // it takes 64 bytes, running into the second level and ending at the data's end.
    const texturetest::MadeTexture made = makeTexture(dxt1, 8, 4, 0, {48, 8});
    const textures::HeaderFile header = headerOf(made.xml);
    const QByteArray dds = textures::exportDds(made.xml, u"x"_s).value().dds;
    const QString spliced = textures::spliceLevels(header, dds);
    const QString first =
        spliced.section(u"<d:blob d:size=\"48\">"_s, 1).section(u"</d:blob"_s, 0, 0);
    const QByteArray all = made.levels.join();
    const QString hex = QString::fromLatin1(all.toHex().toUpper());
    EXPECT_EQ(first,
              hex.mid(0, 16) + u' ' + hex.mid(16, 16) + u' ' + hex.mid(32, 16) + u' '
                  + hex.mid(48, 16) + u'\n' + hex.mid(64, 16) + u' ' + hex.mid(80, 16) + u' '
                  + hex.mid(96, 16));
    // Past the data the second level reads as zero bytes.
    EXPECT_TRUE(spliced.contains(u"<d:blob d:size=\"8\">0000000000000000</d:blob>"_s));
}

TEST(DdsImport, RefusesFilesThatDoNotFitTheTexture)
{
    const texturetest::MadeTexture made = makeTexture(dxt1, 16, 16);
    const textures::HeaderFile header = headerOf(made.xml);
    const QByteArray good = textures::exportDds(made.xml, u"x"_s).value().dds;
    ASSERT_TRUE(textures::importDds(header, good, u"t.dds"_s).ok());

    QByteArray asDxt3 = good;
    asDxt3.replace(84, 4, "DXT3");
    QByteArray otherWidth = good;
    otherWidth[16] = char(32);
    QByteArray notDds = good;
    notDds[0] = 'X';
    const QList<std::pair<QByteArray, QString>> cases{
        {good.left(100), u"is not a complete .dds file"_s},
        {notDds, u"is not a complete .dds file"_s},
        {good.left(good.size() - 8), u"it holds 160 bytes of picture data, the texture 168"_s},
        {good + QByteArray(8, '\0'), u"it holds 176 bytes of picture data, the texture 168"_s},
        {asDxt3, u"it is not saved as DXT1 ARGB"_s},
        {otherWidth, u"it is 32x16, the texture 16x16"_s},
    };
    textures::HeaderFile otherFormat = header;
    otherFormat.pieces[0].replace(u">HC_IMAGE_FORMAT_COMPRESSED<"_s, u">HC_IMAGE_FORMAT_DXT5<"_s);
    platform::Result<QString> unknown = textures::importDds(otherFormat, good, u"t.dds"_s);
    ASSERT_FALSE(unknown.ok());
    EXPECT_TRUE(
        unknown.error().description.endsWith(u"cannot be converted: HC_IMAGE_FORMAT_DXT5"_s));

    for (const auto &[dds, reason] : cases) {
        SCOPED_TRACE(reason.toStdString());
        platform::Result<QString> refused = textures::importDds(header, dds, u"t.dds"_s);
        ASSERT_FALSE(refused.ok());
        EXPECT_TRUE(refused.error().description.contains(reason))
            << refused.error().description.toStdString();
    }
}
