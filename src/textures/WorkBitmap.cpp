#include "textures/WorkBitmap.h"

#include <QBuffer>
#include <QTransform>

namespace textures
{

QByteArray bitmapBytes(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "BMP");
    return bytes;
}

QImage bitmapFromBytes(const QByteArray &bytes)
{
    return QImage::fromData(bytes, "BMP");
}

QImage processBitmap(const QImage &picture, BitmapOperation operation)
{
    switch (operation) {
    case BitmapOperation::Rotate90:
        return picture.transformed(QTransform().rotate(90));
    case BitmapOperation::Greyscale:
        return picture.convertToFormat(QImage::Format_Grayscale8)
            .convertToFormat(QImage::Format_RGB32);
    case BitmapOperation::Flip:
        break;
    }
    return picture.mirrored(false, true);
}

} // namespace textures
