#pragma once
// A game texture's XML made into a standard .dds and its header file: the levels' hexadecimal
// text becomes the picture data unchanged, behind a header for the texture's format.

#include "core/platform/Result.h"
#include "textures/HeaderFile.h"
#include "textures/TextureFormat.h"

#include <QByteArray>
#include <QString>

namespace textures
{

struct DdsExport {
    QByteArray dds;
    HeaderFile header;
    const TextureFormat *format = nullptr;
    int levels = 0;
};

inline constexpr int maxLevels = 16;

// The error's text is the message for the user: an unknown format, more than sixteen levels
// (several textures in one file), no level at all, or level text that is not hexadecimal.
platform::Result<DdsExport> exportDds(const QString &xml, const QString &originalPath);

} // namespace textures
