#pragma once
// The picture formats a game texture may hold, as its <Format> element names them, and what each
// becomes in a standard .dds.

#include <QString>

namespace textures
{

struct TextureFormat {
    enum class Kind { Dxt1, Dxt3, Rgb888, Argb8888 };

    Kind kind;
    QString text; // as the <Format> element writes it
    QString shown; // the name the user is told to save with

    bool compressed() const { return kind == Kind::Dxt1 || kind == Kind::Dxt3; }
};

// The format named by the text of a <Format> element, compared case-blind; null when unknown.
const TextureFormat *findTextureFormat(const QString &text);

} // namespace textures
