#include "textures/DdsHeader.h"

namespace textures
{

namespace
{

void putLittleEndian(QByteArray &bytes, int offset, quint32 value, int count)
{
    for (int i = 0; i < count; ++i) {
        bytes[offset + i] = char((value >> (8 * i)) & 0xFF);
    }
}

quint32 littleEndian(QByteArrayView bytes, int offset)
{
    quint32 value = 0;
    for (int i = 3; i >= 0; --i) {
        value = (value << 8) | quint8(bytes[offset + i]);
    }
    return value;
}

} // namespace

QByteArray
makeDdsHeader(const TextureFormat &format, int width, int height, int levels, qint64 firstLevelSize)
{
    QByteArray header(ddsHeaderSize, '\0');
    header.replace(0, 4, "DDS ");
    header[4] = char(0x7C);
    header[8] = char(0x07);
    header[9] = char(0x10);
    header[10] = char(levels > 1 ? 0x0A : 0x08);
    // Width and height are written in two bytes each; the upper two stay zero.
    putLittleEndian(header, 12, quint32(height), 2);
    putLittleEndian(header, 16, quint32(width), 2);
    header[28] = char(levels);
    header[76] = char(0x20);
    if (format.compressed()) {
        putLittleEndian(header, 20, quint32(firstLevelSize), 4);
        header[80] = char(0x04);
        header.replace(84, 4, format.kind == TextureFormat::Kind::Dxt1 ? "DXT1" : "DXT3");
        if (levels > 1) {
            header[108] = char(0x08);
            header[109] = char(0x10);
            header[110] = char(0x40);
        }
    } else {
        header[22] = char(format.kind == TextureFormat::Kind::Rgb888 ? 0x40 : 0x04);
        header[80] = char(0x41);
        header[88] = char(0x20);
        for (const int mask : {94, 97, 100, 107}) {
            header[mask] = char(0xFF);
        }
        // Not a sensible caps value, but the one this program has always written.
        header[110] = char(0xFF);
    }
    return header;
}

std::optional<DdsHeaderInfo> readDdsHeader(QByteArrayView bytes)
{
    if (bytes.size() < ddsHeaderSize || bytes.first(4) != QByteArrayView("DDS ")
        || littleEndian(bytes, 4) != 124) {
        return std::nullopt;
    }
    const quint32 flags = littleEndian(bytes, 8);
    const quint32 pixelFlags = littleEndian(bytes, 80);
    DdsHeaderInfo info;
    info.height = int(littleEndian(bytes, 12) & 0x7FFFFFFF);
    info.width = int(littleEndian(bytes, 16) & 0x7FFFFFFF);
    info.levels = (flags & 0x20000) != 0 ? int(littleEndian(bytes, 28)) : 0;
    if ((pixelFlags & 0x04) != 0) {
        info.fourCC = bytes.sliced(84, 4).toByteArray();
    } else {
        info.bitsPerPixel = int(littleEndian(bytes, 88));
        info.hasAlpha = (pixelFlags & 0x01) != 0;
    }
    return info;
}

bool headerMatchesFormat(const DdsHeaderInfo &header, const TextureFormat &format)
{
    switch (format.kind) {
    case TextureFormat::Kind::Dxt1:
        return header.fourCC == "DXT1";
    case TextureFormat::Kind::Dxt3:
        return header.fourCC == "DXT3";
    case TextureFormat::Kind::Rgb888:
    case TextureFormat::Kind::Argb8888:
        break;
    }
    return header.fourCC.isEmpty() && header.bitsPerPixel == 32;
}

} // namespace textures
