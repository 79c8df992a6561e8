#pragma once
// The 128-byte header of a standard .dds: written for a game texture's format, size and level
// count, and read back to check an edited file before its bytes go into the game's texture.

#include "textures/TextureFormat.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace textures
{

inline constexpr int ddsHeaderSize = 128;

// The header the conversion writes; firstLevelSize is the byte count of the largest level.
QByteArray makeDdsHeader(
    const TextureFormat &format, int width, int height, int levels, qint64 firstLevelSize);

// What a .dds header says of its picture.
struct DdsHeaderInfo {
    int width = 0;
    int height = 0;
    int levels = 0; // 0 when the file gives no count
    QByteArray fourCC; // "DXT1", "DXT3"... empty for an uncompressed picture
    int bitsPerPixel = 0; // uncompressed pictures only
    bool hasAlpha = false; // uncompressed pictures only
};

// Null when the bytes do not start with a complete .dds header.
std::optional<DdsHeaderInfo> readDdsHeader(QByteArrayView bytes);

// Whether a header fits a texture of this format: the four-letter code of a compressed format,
// or 32 bits per pixel for the uncompressed ones.
bool headerMatchesFormat(const DdsHeaderInfo &header, const TextureFormat &format);

} // namespace textures
