#pragma once
// Shows a texture without the game's tools: the largest picture level of a game texture (its
// binary, or the converter's XML of it) or of a .dds, decoded to pixels.

#include "core/platform/Result.h"

#include <QByteArray>
#include <QImage>

namespace textures
{

// The kind of file is told by its first bytes. The error's text says why nothing can be shown.
platform::Result<QImage> decodePicture(const QByteArray &bytes);

platform::Result<QImage> decodeTextureXml(const QString &xml);
platform::Result<QImage> decodeDds(QByteArrayView dds);

} // namespace textures
