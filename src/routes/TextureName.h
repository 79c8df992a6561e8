#pragma once
// How a texture named in a geometry file becomes a path: its "[nn]" marker dropped, its leading
// parent steps counted, and the folder it is looked for in worked out from the geometry's folder.

#include <QString>

namespace routes
{

// 5, 4, 3, 2 or 1 for that many leading "..\" steps (case-blind, longest first); 0 for none.
int CountParents(const QString &value);

// A value with "[" at position 1 loses its first four characters; one with "[" further on loses
// the four characters from there.
QString dropMarker(const QString &value);

// The folder a texture is looked for in, and the texture's name below it.
struct TexturePlace {
    QString prefix;
    QString name;
};

// texture: the value with its marker dropped; base: the geometry's folder with its last
// backslash; geometryPath: the geometry file's full name; previousPrefix: the prefix of the line
// before in the same texture list, kept by names that start with "text".
TexturePlace placeTexture(const QString &texture,
                          const QString &base,
                          const QString &geometryPath,
                          const QString &previousPrefix);

} // namespace routes
