#pragma once
// Game textures made for tests: the converter's XML of a texture with chosen format, size and
// levels, filled with repeatable bytes, and the paths of the real samples.

#include <QByteArray>
#include <QList>
#include <QString>

namespace texturetest
{

struct MadeTexture {
    QString xml;
    QList<QByteArray> levels; // the bytes of each level, largest first
};

// Levels halve the picture down to 4x4 (or to the given count); sizes follow the format unless
// levelSizes is given. The hex rows are laid out as the converter writes them.
MadeTexture makeTexture(const QString &format,
                        int width,
                        int height,
                        int levelCount = 0,
                        const QList<qint64> &levelSizes = {},
                        unsigned seed = 1);

// The bytes of a level of that format and size.
qint64 formatLevelSize(const QString &format, int width, int height);

// The hexadecimal digits of all d:blob elements of an XML text, in order, without white space.
QString blobDigits(const QString &xml);
// The text with the contents of every d:blob element left out.
QString outsideBlobs(const QString &xml);

QString samplesDir();
QString ra12Xml(); // converter XML of a 64x64 DXT1 texture with five levels
QString tileTexture(); // a 256x256 DXT1 game texture, binary
QByteArray readHostFile(const QString &path);

} // namespace texturetest
