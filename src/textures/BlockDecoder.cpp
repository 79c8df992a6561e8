#include "textures/BlockDecoder.h"

#include <array>

namespace textures
{

namespace
{

using Colour = std::array<quint8, 4>; // red, green, blue, alpha

Colour unpack565(quint8 low, quint8 high)
{
    const int value = low | (high << 8);
    const int red = (value >> 11) & 0x1F;
    const int green = (value >> 5) & 0x3F;
    const int blue = value & 0x1F;
    return {quint8((red << 3) | (red >> 2)),
            quint8((green << 2) | (green >> 4)),
            quint8((blue << 3) | (blue >> 2)),
            255};
}

// The four colours of a colour block; a DXT1 block whose first colour is not above the second
// has three colours and transparent black.
std::array<Colour, 4> blockColours(const quint8 *block, bool dxt1)
{
    const Colour a = unpack565(block[0], block[1]);
    const Colour b = unpack565(block[2], block[3]);
    const bool threeColours = dxt1 && (block[0] | (block[1] << 8)) <= (block[2] | (block[3] << 8));
    std::array<Colour, 4> colours{a, b, {}, {}};
    for (int i = 0; i < 3; ++i) {
        if (threeColours) {
            colours[2][i] = quint8((a[i] + b[i]) / 2);
            colours[3][i] = 0;
        } else {
            colours[2][i] = quint8((2 * a[i] + b[i]) / 3);
            colours[3][i] = quint8((a[i] + 2 * b[i]) / 3);
        }
    }
    colours[2][3] = 255;
    colours[3][3] = threeColours ? 0 : 255;
    return colours;
}

void decodeBlock(const quint8 *block, bool dxt3, QImage &image, int x0, int y0)
{
    const quint8 *colourBlock = dxt3 ? block + 8 : block;
    const std::array<Colour, 4> colours = blockColours(colourBlock, !dxt3);
    for (int y = 0; y < 4 && y0 + y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y0 + y));
        const quint8 indices = colourBlock[4 + y];
        for (int x = 0; x < 4 && x0 + x < image.width(); ++x) {
            const Colour &c = colours[(indices >> (2 * x)) & 3];
            int alpha = c[3];
            if (dxt3) {
                const int texel = y * 4 + x;
                const int nibble = (block[texel / 2] >> (4 * (texel % 2))) & 0x0F;
                alpha = nibble | (nibble << 4);
            }
            line[x0 + x] = qRgba(c[0], c[1], c[2], alpha);
        }
    }
}

void decodePixels(PixelLayout layout, QByteArrayView data, QImage &image)
{
    const int step = layout == PixelLayout::Bgr ? 3 : 4;
    const auto *bytes = reinterpret_cast<const quint8 *>(data.data());
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const quint8 *p = bytes + (qsizetype(y) * image.width() + x) * step;
            const int alpha = layout == PixelLayout::Bgra ? p[3] : 255;
            line[x] = qRgba(p[2], p[1], p[0], alpha);
        }
    }
}

} // namespace

qint64 levelBytes(PixelLayout layout, int width, int height)
{
    const qint64 blocks = qint64((width + 3) / 4) * ((height + 3) / 4);
    switch (layout) {
    case PixelLayout::Dxt1:
        return blocks * 8;
    case PixelLayout::Dxt3:
        return blocks * 16;
    case PixelLayout::Bgr:
        return qint64(width) * height * 3;
    case PixelLayout::Bgra:
    case PixelLayout::Bgrx:
        break;
    }
    return qint64(width) * height * 4;
}

QImage decodeLevel(PixelLayout layout, int width, int height, QByteArrayView data)
{
    if (width <= 0 || height <= 0 || width > 16384 || height > 16384
        || data.size() < levelBytes(layout, width, height)) {
        return {};
    }
    QImage image(width, height, QImage::Format_ARGB32);
    if (layout != PixelLayout::Dxt1 && layout != PixelLayout::Dxt3) {
        decodePixels(layout, data, image);
        return image;
    }
    const bool dxt3 = layout == PixelLayout::Dxt3;
    const int blockSize = dxt3 ? 16 : 8;
    const auto *block = reinterpret_cast<const quint8 *>(data.data());
    for (int y = 0; y < height; y += 4) {
        for (int x = 0; x < width; x += 4, block += blockSize) {
            decodeBlock(block, dxt3, image, x, y);
        }
    }
    return image;
}

} // namespace textures
