// A 2048x2048 DXT1 texture with its mip-maps down to 4x4 (as the game stores them), to .dds and
// back, and its picture decoded.

#include "textures/DdsExport.h"
#include "textures/DdsImport.h"
#include "textures/HeaderFile.h"
#include "textures/PictureDecoder.h"

#include <benchmark/benchmark.h>
#include <random>

namespace
{

// The converter's XML of the texture: one element for each level, rows of four 8-byte groups.
QString largeTextureXml()
{
    std::mt19937 random(1);
    QString xml =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<cHcTextureGroup>\r\n"
                       "<Width d:type=\"sUInt32\">2048</Width>\r\n"
                       "<Height d:type=\"sUInt32\">2048</Height>\r\n<Mip>\r\n");
    for (int side = 2048; side >= 4; side /= 2) {
        const qint64 size = qint64(side / 4) * (side / 4) * 8;
        xml += QStringLiteral("<cHcImageDx>\r\n<Format d:type=\"cDeltaString\">HC_IMAGE_FORMAT_"
                              "COMPRESSED</Format>\r\n<d:blob d:size=\"%1\">")
                   .arg(size);
        QString hex;
        hex.reserve(size * 9 / 4);
        for (qint64 i = 0; i < size; i += 8) {
            if (i > 0) {
                hex += i % 32 == 0 ? QStringLiteral("\r\n") : QStringLiteral(" ");
            }
            hex += QStringLiteral("%1")
                       .arg(qulonglong(random()) << 32 | random(), 16, 16, QChar(u'0'))
                       .toUpper();
        }
        xml += hex + QStringLiteral("</d:blob>\r\n</cHcImageDx>\r\n");
    }
    return xml + QStringLiteral("</Mip>\r\n</cHcTextureGroup>\r\n");
}

const QString &textureXml()
{
    static const QString xml = largeTextureXml();
    return xml;
}

void BM_DdsConversion_ToDds(benchmark::State &state)
{
    const QString &xml = textureXml();
    for (auto _ : state) {
        platform::Result<textures::DdsExport> dds =
            textures::exportDds(xml, QStringLiteral("C:\\t.TgPcDx"));
        const QString header = textures::headerFileText(dds.value().header);
        benchmark::DoNotOptimize(header.size());
    }
}

BENCHMARK(BM_DdsConversion_ToDds)->Unit(benchmark::kMillisecond);

void BM_DdsConversion_FromDds(benchmark::State &state)
{
    const textures::DdsExport made =
        textures::exportDds(textureXml(), QStringLiteral("C:\\t.TgPcDx")).value();
    const QString headerText = textures::headerFileText(made.header);
    for (auto _ : state) {
        const std::optional<textures::HeaderFile> header = textures::parseHeaderFile(headerText);
        platform::Result<QString> xml =
            textures::importDds(*header, made.dds, QStringLiteral("t.dds"));
        benchmark::DoNotOptimize(xml.value().size());
    }
}

BENCHMARK(BM_DdsConversion_FromDds)->Unit(benchmark::kMillisecond);

void BM_DdsConversion_DecodePicture(benchmark::State &state)
{
    const QByteArray dds = textures::exportDds(textureXml(), QString()).value().dds;
    for (auto _ : state) {
        platform::Result<QImage> picture = textures::decodeDds(dds);
        benchmark::DoNotOptimize(picture.value().width());
    }
}

BENCHMARK(BM_DdsConversion_DecodePicture)->Unit(benchmark::kMillisecond);

} // namespace
