#pragma once
// What the conversion reads from the converter's XML of a texture: the format, the picture's size,
// and the d:blob levels with the text around them (the pieces that are kept to splice the levels
// back later).

#include <QList>
#include <QString>
#include <QStringList>

namespace textures
{

// One picture level: its size in bytes and where its hexadecimal text lies (from 0, end excluded).
struct BlobLevel {
    qint64 size = 0;
    qsizetype hexStart = 0;
    qsizetype hexEnd = 0;
};

struct TextureText {
    QString format;
    int width = 0;
    int height = 0;
    QList<BlobLevel> levels;
    // levels.size() + 1 pieces: up to the first level's ">", between levels, after the last.
    QStringList pieces;
};

// Scans the text once. A level whose "</d:blob" is missing ends the scan; the rest of the text is
// then the last piece.
TextureText scanTextureText(const QString &xml);

// The text between the ">" that ends "<Format..." and "</Format", case-sensitive; empty if absent.
QString formatText(const QString &xml);
// The number after "<Name"'s next ">", up to the next "<"; 0 when absent.
int elementNumber(const QString &xml, const QString &name);
// Leading digits after blanks, as the program reads "1024" from text; 0 when there are none.
qint64 leadingNumber(QStringView text);

} // namespace textures
