#include "textures/PictureDecoder.h"

#include "serz/Converter.h"
#include "textures/BlockDecoder.h"
#include "textures/DdsExport.h"
#include "textures/DdsHeader.h"
#include "textures/TextureText.h"

#include <span>

namespace textures
{

namespace
{

platform::Error cannotShow(const QString &why)
{
    return platform::Error{platform::InvalidArgument, why};
}

PixelLayout layoutOf(const TextureFormat &format, qint64 firstLevelSize, int width, int height)
{
    switch (format.kind) {
    case TextureFormat::Kind::Dxt1:
        return PixelLayout::Dxt1;
    case TextureFormat::Kind::Dxt3:
        return PixelLayout::Dxt3;
    case TextureFormat::Kind::Argb8888:
        return PixelLayout::Bgra;
    case TextureFormat::Kind::Rgb888:
        break;
    }
    // Pictures without alpha may be stored in three bytes a pixel or in four.
    return firstLevelSize == levelBytes(PixelLayout::Bgr, width, height) ? PixelLayout::Bgr
                                                                         : PixelLayout::Bgrx;
}

std::optional<PixelLayout> layoutOf(const DdsHeaderInfo &header)
{
    if (header.fourCC == "DXT1") {
        return PixelLayout::Dxt1;
    }
    if (header.fourCC == "DXT3") {
        return PixelLayout::Dxt3;
    }
    if (!header.fourCC.isEmpty()) {
        return std::nullopt;
    }
    if (header.bitsPerPixel == 24) {
        return PixelLayout::Bgr;
    }
    if (header.bitsPerPixel == 32) {
        return header.hasAlpha ? PixelLayout::Bgra : PixelLayout::Bgrx;
    }
    return std::nullopt;
}

platform::Result<QImage> decoded(QImage image)
{
    if (image.isNull()) {
        return cannotShow(QStringLiteral("The picture data is shorter than the picture's size."));
    }
    return image;
}

} // namespace

platform::Result<QImage> decodeTextureXml(const QString &xml)
{
    platform::Result<DdsExport> dds = exportDds(xml, QString());
    if (!dds) {
        return dds.error();
    }
    const DdsExport &made = dds.value();
    const TextureText texture = scanTextureText(xml);
    const qint64 firstSize = made.header.sizes.first();
    const PixelLayout layout = layoutOf(*made.format, firstSize, texture.width, texture.height);
    return decoded(decodeLevel(layout,
                               texture.width,
                               texture.height,
                               QByteArrayView(made.dds).sliced(ddsHeaderSize, firstSize)));
}

platform::Result<QImage> decodeDds(QByteArrayView dds)
{
    const std::optional<DdsHeaderInfo> header = readDdsHeader(dds);
    if (!header) {
        return cannotShow(QStringLiteral("This is not a complete .dds file."));
    }
    const std::optional<PixelLayout> layout = layoutOf(*header);
    if (!layout) {
        return cannotShow(QStringLiteral("Pictures of this .dds format cannot be shown: ")
                          + QString::fromLatin1(header->fourCC));
    }
    return decoded(decodeLevel(*layout, header->width, header->height, dds.sliced(ddsHeaderSize)));
}

platform::Result<QImage> decodePicture(const QByteArray &bytes)
{
    if (bytes.startsWith("DDS ")) {
        return decodeDds(bytes);
    }
    const auto *raw = reinterpret_cast<const std::byte *>(bytes.constData());
    const std::span<const std::byte> span(raw, size_t(bytes.size()));
    if (serz::looksBinary(span)) {
        serz::Result<std::string> xml = serz::toXml(span, serz::XmlOptions{});
        if (!xml) {
            return cannotShow(QStringLiteral("The texture cannot be read: ")
                              + QString::fromStdString(xml.error().describe()));
        }
        return decodeTextureXml(QString::fromStdString(xml.value()));
    }
    return decodeTextureXml(QString::fromUtf8(bytes));
}

} // namespace textures
