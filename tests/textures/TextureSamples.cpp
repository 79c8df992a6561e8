#include "TextureSamples.h"

#include <QFile>
#include <QRegularExpression>

#include <random>

namespace texturetest
{

namespace
{

QString hexRows(const QByteArray &bytes)
{
    QString text;
    for (qsizetype i = 0; i < bytes.size(); i += 8) {
        if (i > 0) {
            text += (i % 32 == 0) ? QStringLiteral("\r\n") : QStringLiteral(" ");
        }
        text += QString::fromLatin1(bytes.mid(i, 8).toHex().toUpper());
    }
    return text;
}

} // namespace

qint64 formatLevelSize(const QString &format, int width, int height)
{
    const qint64 blocks = qint64((width + 3) / 4) * ((height + 3) / 4);
    if (format == QStringLiteral("HC_IMAGE_FORMAT_COMPRESSED")) {
        return blocks * 8;
    }
    if (format == QStringLiteral("HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA")) {
        return blocks * 16;
    }
    return qint64(width) * height * 4;
}

MadeTexture makeTexture(const QString &format,
                        int width,
                        int height,
                        int levelCount,
                        const QList<qint64> &levelSizes,
                        unsigned seed)
{
    std::mt19937 random(seed);
    MadeTexture made;
    QString &xml = made.xml;
    xml = QStringLiteral(
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
              "<cHcTextureGroup xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" "
              "d:version=\"1.0\" d:id=\"1\">\r\n\t<Texture>\r\n\t\t<cHcTexture d:id=\"2\">\r\n"
              "\t\t\t<Width d:type=\"sUInt32\">%1</Width>\r\n"
              "\t\t\t<Height d:type=\"sUInt32\">%2</Height>\r\n"
              "\t\t\t<Name d:type=\"cDeltaString\">Test\\Made</Name>\r\n"
              "\t\t\t<Data>\r\n\t\t\t\t<cHcTextureData d:id=\"3\">\r\n\t\t\t\t\t<Mip>\r\n")
              .arg(width)
              .arg(height);
    const int count = !levelSizes.isEmpty() ? int(levelSizes.size()) : levelCount;
    int w = width;
    int h = height;
    for (int level = 0; count > 0 ? level < count : (w >= 4 && h >= 4); ++level) {
        const qint64 size =
            !levelSizes.isEmpty() ? levelSizes[level] : formatLevelSize(format, w, h);
        QByteArray bytes(size, '\0');
        for (char &byte : bytes) {
            byte = char(random() & 0xFF);
        }
        made.levels.append(bytes);
        xml += QStringLiteral("\t\t\t\t\t\t<cHcImageDx d:id=\"%1\">\r\n"
                              "\t\t\t\t\t\t\t<Format d:type=\"cDeltaString\">%2</Format>\r\n"
                              "\t\t\t\t\t\t\t<IsSwizzled d:type=\"bool\">0</IsSwizzled>\r\n"
                              "\t\t\t\t\t\t\t<Width d:type=\"sUInt16\">%3</Width>\r\n"
                              "\t\t\t\t\t\t\t<Height d:type=\"sUInt16\">%4</Height>\r\n"
                              "\t\t\t\t\t\t\t<d:blob d:size=\"%5\">")
                   .arg(10 + level)
                   .arg(format)
                   .arg(w)
                   .arg(h)
                   .arg(size)
            + hexRows(bytes) + QStringLiteral("</d:blob>\r\n\t\t\t\t\t\t</cHcImageDx>\r\n");
        w = qMax(1, w / 2);
        h = qMax(1, h / 2);
    }
    xml += QStringLiteral(
        "\t\t\t\t\t</Mip>\r\n\t\t\t\t\t<TextureBlob/>\r\n\t\t\t\t\t<Palette>\r\n"
        "\t\t\t\t\t\t<d:nil/>\r\n\t\t\t\t\t</Palette>\r\n\t\t\t\t</cHcTextureData>\r\n"
        "\t\t\t</Data>\r\n\t\t</cHcTexture>\r\n\t</Texture>\r\n</cHcTextureGroup>\r\n");
    return made;
}

QString blobDigits(const QString &xml)
{
    static const QRegularExpression blob(QStringLiteral("<d:blob[^>]*>([^<]*)</d:blob>"));
    QString digits;
    for (const QRegularExpressionMatch &match : blob.globalMatch(xml)) {
        digits += match.captured(1);
    }
    digits.remove(QRegularExpression(QStringLiteral("\\s")));
    return digits;
}

QString outsideBlobs(const QString &xml)
{
    static const QRegularExpression blob(QStringLiteral("(<d:blob[^>]*>)[^<]*(</d:blob>)"));
    QString text = xml;
    return text.replace(blob, QStringLiteral("\\1\\2"));
}

QString samplesDir()
{
    return QStringLiteral(BV_SAMPLES_DIR) + QStringLiteral("/serz");
}

QString ra12Xml()
{
    return samplesDir() + QStringLiteral("/oberon-oss+serz-test/xml-only/serz-Ra12.xml");
}

QString tileTexture()
{
    return samplesDir() + QStringLiteral("/Kai8090+Erzbachbahn/Terrain/textures/tile_40_00.TgPcDx");
}

QByteArray readHostFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace texturetest
