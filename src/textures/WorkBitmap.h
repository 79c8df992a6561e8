#pragma once
// The viewer's work bitmap: a picture held as a .bmp file's bytes, and the changes the viewer
// makes to it (grey scale, flip, rotate), numbered as the viewer's menus number them.

#include <QByteArray>
#include <QImage>

namespace textures
{

enum class BitmapOperation { Rotate90 = 100, Greyscale = 103, Flip = 106 };

// The picture as a .bmp file: 32 bits a pixel, alpha dropped.
QByteArray bitmapBytes(const QImage &picture);
// A null image when the bytes are no picture.
QImage bitmapFromBytes(const QByteArray &bytes);
// Rotate90 turns clockwise; Flip turns the picture upside down.
QImage processBitmap(const QImage &picture, BitmapOperation operation);

} // namespace textures
