#include "TextureSamples.h"
#include "textures/BlockDecoder.h"
#include "textures/DdsExport.h"
#include "textures/PictureDecoder.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef BV_HAVE_SQUISH
#include <squish.h>
#endif

#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

QByteArray randomBytes(qsizetype size, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes) {
        byte = char(random() & 0xFF);
    }
    return bytes;
}

// The picture as rows of red, green, blue and alpha bytes.
QByteArray rgbaBytes(const QImage &image)
{
    return QByteArray(
        reinterpret_cast<const char *>(image.convertToFormat(QImage::Format_RGBA8888).constBits()),
        qsizetype(image.width()) * image.height() * 4);
}

// The largest difference of one channel between two pictures of the same size.
int largestDifference(const QByteArray &a, const QByteArray &b)
{
    int largest = a.size() == b.size() ? 0 : 256;
    for (qsizetype i = 0; i < qMin(a.size(), b.size()); ++i) {
        largest = qMax(largest, qAbs(int(quint8(a[i])) - int(quint8(b[i]))));
    }
    return largest;
}

} // namespace

#ifdef BV_HAVE_SQUISH
TEST(PictureDecoder, DxtBlocksDecodeAsAnIndependentDecoderDecodesThem)
{
    struct Case {
        textures::PixelLayout layout;
        int flags;
        int width;
        int height;
    };

    // Random blocks reach both colour modes of DXT1, transparency included; 12x8 and 6x6 have
    // blocks that cross the picture's edge.
    const QList<Case> cases{
        {textures::PixelLayout::Dxt1, squish::kDxt1, 64, 64},
        {textures::PixelLayout::Dxt3, squish::kDxt3, 64, 32},
        {textures::PixelLayout::Dxt1, squish::kDxt1, 6, 6},
        {textures::PixelLayout::Dxt3, squish::kDxt3, 12, 8},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(
            QStringLiteral("%1x%2 flags %3").arg(c.width).arg(c.height).arg(c.flags).toStdString());
        const QByteArray data = randomBytes(textures::levelBytes(c.layout, c.width, c.height), 7);
        std::vector<squish::u8> expected(size_t(c.width) * c.height * 4);
        squish::DecompressImage(expected.data(), c.width, c.height, data.constData(), c.flags);
        const QImage image = textures::decodeLevel(c.layout, c.width, c.height, data);
        ASSERT_FALSE(image.isNull());
        EXPECT_EQ(rgbaBytes(image),
                  QByteArray(reinterpret_cast<const char *>(expected.data()),
                             qsizetype(expected.size())));
    }
}

TEST(PictureDecoder, AGameTextureShowsTheLargestLevel)
{
    const QByteArray binary = texturetest::readHostFile(texturetest::tileTexture());
    if (binary.isEmpty()) {
        GTEST_SKIP() << "samples not found";
    }
    platform::Result<QImage> picture = textures::decodePicture(binary);
    ASSERT_TRUE(picture.ok()) << picture.error().description.toStdString();
    ASSERT_EQ(picture.value().size(), QSize(256, 256));
    // The blocks lie in the binary just after their size; decoded independently they must agree.
    const qsizetype blob = binary.indexOf(QByteArray::fromHex("ff4200800000"));
    ASSERT_GT(blob, 0);
    std::vector<squish::u8> expected(256 * 256 * 4);
    squish::DecompressImage(
        expected.data(), 256, 256, binary.constData() + blob + 6, squish::kDxt1);
    EXPECT_EQ(
        rgbaBytes(picture.value()),
        QByteArray(reinterpret_cast<const char *>(expected.data()), qsizetype(expected.size())));
}
#endif

TEST(PictureDecoder, ExportedDdsDecodesAsImageMagickDecodesIt)
{
    const QString convert = QStandardPaths::findExecutable(u"convert-im6.q16"_s);
    if (convert.isEmpty()) {
        GTEST_SKIP() << "ImageMagick not found";
    }
    QTemporaryDir dir;
    for (const QString &format :
         {u"HC_IMAGE_FORMAT_COMPRESSED"_s, u"HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA"_s}) {
        SCOPED_TRACE(format.toStdString());
        const texturetest::MadeTexture made = texturetest::makeTexture(format, 32, 16, 1, {}, 3);
        const QByteArray dds = textures::exportDds(made.xml, u"x"_s).value().dds;
        QFile file(dir.filePath(u"t.dds"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dds);
        file.close();
        QProcess process;
        process.start(convert, {file.fileName(), u"-depth"_s, u"8"_s, u"rgba:-"_s});
        ASSERT_TRUE(process.waitForFinished(30000));
        const QByteArray theirs = process.readAllStandardOutput();
        platform::Result<QImage> ours = textures::decodeDds(dds);
        ASSERT_TRUE(ours.ok());
        // The two round the interpolated colours each their own way, by at most a step or two.
        EXPECT_LE(largestDifference(rgbaBytes(ours.value()), theirs.left(32 * 16 * 4)), 2);
        EXPECT_EQ(largestDifference(rgbaBytes(textures::decodeTextureXml(made.xml).value()),
                                    rgbaBytes(ours.value())),
                  0);
    }
}

TEST(PictureDecoder, UncompressedPicturesAreStoredBlueFirst)
{
    const QByteArray pixels = QByteArray::fromHex("0000FF80"
                                                  "00FF0040"
                                                  "FF000000"
                                                  "10203040");
    const QImage withAlpha = textures::decodeLevel(textures::PixelLayout::Bgra, 2, 2, pixels);
    EXPECT_EQ(withAlpha.pixel(0, 0), qRgba(255, 0, 0, 0x80));
    EXPECT_EQ(withAlpha.pixel(1, 0), qRgba(0, 255, 0, 0x40));
    EXPECT_EQ(withAlpha.pixel(0, 1), qRgba(0, 0, 255, 0));
    const QImage opaque = textures::decodeLevel(textures::PixelLayout::Bgrx, 2, 2, pixels);
    EXPECT_EQ(opaque.pixel(1, 1), qRgba(0x30, 0x20, 0x10, 255));

    // A texture without alpha may hold three bytes a pixel; the level's size tells.
    const texturetest::MadeTexture packed =
        texturetest::makeTexture(u"HC_IMAGE_FORMAT_COL888"_s, 4, 2, 0, {24});
    platform::Result<QImage> picture = textures::decodeTextureXml(packed.xml);
    ASSERT_TRUE(picture.ok());
    const QByteArray &bytes = packed.levels[0];
    EXPECT_EQ(picture.value().pixel(3, 1),
              qRgb(quint8(bytes[23]), quint8(bytes[22]), quint8(bytes[21])));
}

TEST(PictureDecoder, SaysWhyAPictureCannotBeShown)
{
    const QList<std::pair<const char *, QByteArray>> cases{
        {"empty file", QByteArray()},
        {"damaged binary", QByteArray("SERZ\0\0\1\0\xFF\x50", 10)},
        {"short dds", QByteArray("DDS ", 4) + QByteArray(20, '\0')},
        {"dds data cut",
         textures::exportDds(texturetest::makeTexture(u"HC_IMAGE_FORMAT_COMPRESSED"_s, 8, 8, 1).xml,
                             u"x"_s)
             .value()
             .dds.left(140)},
        {"unknown format",
         texturetest::makeTexture(u"HC_IMAGE_FORMAT_PAL8"_s, 4, 4, 1, {16}).xml.toUtf8()},
    };
    for (const auto &[name, bytes] : cases) {
        SCOPED_TRACE(name);
        platform::Result<QImage> picture = textures::decodePicture(bytes);
        ASSERT_FALSE(picture.ok());
        EXPECT_FALSE(picture.error().description.isEmpty());
    }
}
