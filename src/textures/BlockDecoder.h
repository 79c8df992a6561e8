#pragma once
// Turns a picture level's bytes into pixels: DXT1 and DXT3 blocks, and 32-bit or 24-bit pixels
// stored blue first.

#include <QByteArrayView>
#include <QImage>

namespace textures
{

enum class PixelLayout { Dxt1, Dxt3, Bgra, Bgrx, Bgr };

// The bytes a level of this layout and size takes.
qint64 levelBytes(PixelLayout layout, int width, int height);

// An ARGB32 picture, or a null image when the data is shorter than the level needs.
QImage decodeLevel(PixelLayout layout, int width, int height, QByteArrayView data);

} // namespace textures
