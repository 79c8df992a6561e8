#pragma once
// The ".dat" file left beside an exported .dds: the text around the picture levels, their sizes
// and the game texture's path, which is all that is needed to put an edited .dds back.

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace textures
{

struct HeaderFile {
    QStringList pieces; // one more than sizes
    QList<qint64> sizes;
    QString originalPath;
};

// The level count, the pieces quoted (a double quote inside one is written as "#"), the sizes and
// the quoted path, one item a line, lines ending in CR LF.
QString headerFileText(const HeaderFile &header);

// Reads that text back, turning every "#" in a piece into a double quote; null when the text is
// not such a file (a count outside 1 to 16, a missing quote or size, anything left over).
std::optional<HeaderFile> parseHeaderFile(const QString &text);

} // namespace textures
