#include "textures/TextureFormat.h"

#include <array>

namespace textures
{

namespace
{

const std::array<TextureFormat, 4> &formats()
{
    using Kind = TextureFormat::Kind;
    static const std::array<TextureFormat, 4> table{{
        {Kind::Dxt1, QStringLiteral("HC_IMAGE_FORMAT_COMPRESSED"), QStringLiteral("DXT1 ARGB")},
        {Kind::Dxt3,
         QStringLiteral("HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA"),
         QStringLiteral("DXT3 ARGB")},
        {Kind::Rgb888, QStringLiteral("HC_IMAGE_FORMAT_COL888"), QStringLiteral("RGB 8.8.8")},
        {Kind::Argb8888,
         QStringLiteral("HC_IMAGE_FORMAT_COLA8888"),
         QStringLiteral("ARGB 8.8.8.8")},
    }};
    return table;
}

} // namespace

const TextureFormat *findTextureFormat(const QString &text)
{
    for (const TextureFormat &format : formats()) {
        if (format.text.compare(text, Qt::CaseInsensitive) == 0) {
            return &format;
        }
    }
    return nullptr;
}

} // namespace textures
