#include "TextureSamples.h"
#include "textures/DdsExport.h"
#include "textures/DdsHeader.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using texturetest::makeTexture;

namespace
{

const QString dxt1 = u"HC_IMAGE_FORMAT_COMPRESSED"_s;
const QString dxt3 = u"HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA"_s;
const QString rgb = u"HC_IMAGE_FORMAT_COL888"_s;
const QString argb = u"HC_IMAGE_FORMAT_COLA8888"_s;

// The header as the format table lays it out, byte by byte.
QByteArray expectedHeader(const QString &format, int width, int height, int levels, qint64 first)
{
    QByteArray h(128, '\0');
    h.replace(0, 4, "DDS ");
    h[4] = char(0x7C);
    h[8] = char(0x07);
    h[9] = char(0x10);
    h[10] = char(levels > 1 ? 0x0A : 0x08);
    h[12] = char(height & 0xFF);
    h[13] = char(height >> 8);
    h[16] = char(width & 0xFF);
    h[17] = char(width >> 8);
    h[28] = char(levels);
    h[76] = char(0x20);
    if (format == dxt1 || format == dxt3) {
        for (int i = 0; i < 4; ++i) {
            h[20 + i] = char((first >> (8 * i)) & 0xFF);
        }
        h[80] = char(0x04);
        h.replace(84, 4, format == dxt1 ? "DXT1" : "DXT3");
        if (levels > 1) {
            h[108] = char(0x08);
            h[109] = char(0x10);
            h[110] = char(0x40);
        }
    } else {
        h[22] = char(format == rgb ? 0x40 : 0x04);
        h[80] = char(0x41);
        h[88] = char(0x20);
        h[94] = h[97] = h[100] = h[107] = char(0xFF);
        h[110] = char(0xFF);
    }
    return h;
}

} // namespace

TEST(DdsExport, WritesTheHeaderOfEachFormatAndLevelCountAndTheLevelsUnchanged)
{
    struct Case {
        QString format;
        int width;
        int height;
        int levels;
    };

    const QList<Case> cases{
        {dxt1, 64, 64, 5},
        {dxt1, 256, 256, 1},
        {dxt3, 128, 64, 6},
        {dxt3, 32, 32, 1},
        {rgb, 16, 8, 2},
        {argb, 8, 8, 1},
        {dxt1, 4096, 8, 1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2x%3, %4 levels")
                         .arg(c.format)
                         .arg(c.width)
                         .arg(c.height)
                         .arg(c.levels)
                         .toStdString());
        const texturetest::MadeTexture made = makeTexture(c.format, c.width, c.height, c.levels);
        platform::Result<textures::DdsExport> dds =
            textures::exportDds(made.xml, u"C:\\x.TgPcDx"_s);
        ASSERT_TRUE(dds.ok()) << dds.error().description.toStdString();
        const QByteArray &bytes = dds.value().dds;
        EXPECT_EQ(bytes.left(128).toHex(' '),
                  expectedHeader(c.format, c.width, c.height, c.levels, made.levels[0].size())
                      .toHex(' '));
        EXPECT_EQ(bytes.mid(128), made.levels.join());
        EXPECT_EQ(dds.value().levels, c.levels);
        EXPECT_EQ(dds.value().header.pieces.size(), c.levels + 1);
    }
}

TEST(DdsExport, SixteenLevelsConvertSeventeenAreRefused)
{
    const QList<qint64> sixteen(16, 8);
    EXPECT_TRUE(textures::exportDds(makeTexture(dxt1, 4, 4, 0, sixteen).xml, u"x"_s).ok());
    const QList<qint64> seventeen(17, 8);
    platform::Result<textures::DdsExport> refused =
        textures::exportDds(makeTexture(dxt1, 4, 4, 0, seventeen).xml, u"x"_s);
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(
        refused.error().description,
        u"Sorry, unable to convert files of the following type at this time:-Multiple-Texture file.\r\n"_s);
}

TEST(DdsExport, RefusesUnknownFormatsAndDamagedLevels)
{
    platform::Result<textures::DdsExport> unknown =
        textures::exportDds(makeTexture(u"HC_IMAGE_FORMAT_PALETTE8"_s, 8, 8, 1, {64}).xml, u"x"_s);
    ASSERT_FALSE(unknown.ok());
    EXPECT_EQ(
        unknown.error().description,
        u"Sorry, unable to convert files of the following type at this time:- HC_IMAGE_FORMAT_PALETTE8\r\n"_s);

    QString notHex = makeTexture(dxt1, 8, 8, 1).xml;
    const qsizetype blob = notHex.indexOf(u"<d:blob"_s);
    notHex.insert(notHex.indexOf(u'>', blob) + 1, u"ZZ"_s);
    EXPECT_FALSE(textures::exportDds(notHex, u"x"_s).ok());

    QString tooLong = makeTexture(dxt1, 8, 8, 1).xml;
    tooLong.insert(tooLong.indexOf(u"</d:blob"_s), u" 00"_s);
    EXPECT_FALSE(textures::exportDds(tooLong, u"x"_s).ok());

    EXPECT_FALSE(
        textures::exportDds(u"<Format>HC_IMAGE_FORMAT_COMPRESSED</Format>"_s, u"x"_s).ok());
}

TEST(DdsExport, AnIndependentReaderSeesTheSizeAndFormat)
{
    const QString identify = QStandardPaths::findExecutable(u"identify"_s);
    if (identify.isEmpty()) {
        GTEST_SKIP() << "identify not found";
    }

    struct Case {
        QString format;
        int width;
        int height;
        QString expected;
    };

    const QList<Case> cases{
        {dxt1, 64, 32, u"DDS 64 32 DXT1"_s},
        {dxt3, 32, 32, u"DDS 32 32 DXT3"_s},
        {dxt1, 4096, 4, u"DDS 4096 4 DXT1"_s},
    };
    QTemporaryDir dir;
    for (const Case &c : cases) {
        SCOPED_TRACE(c.expected.toStdString());
        platform::Result<textures::DdsExport> dds =
            textures::exportDds(makeTexture(c.format, c.width, c.height).xml, u"x"_s);
        ASSERT_TRUE(dds.ok());
        QFile file(dir.filePath(u"t.dds"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dds.value().dds);
        file.close();
        QProcess process;
        process.start(identify, {u"-format"_s, u"%m %w %h %C\\n"_s, file.fileName()});
        ASSERT_TRUE(process.waitForFinished(30000));
        const QString first =
            QString::fromLatin1(process.readAllStandardOutput()).section(u'\n', 0, 0);
        EXPECT_EQ(first, c.expected) << process.readAllStandardError().toStdString();
    }
}
