#include "routes/TextureName.h"

#include "core/TextPrimitives.h"

using core::instr;
using core::instrRev;
using core::left;
using core::mid;

namespace routes
{

namespace
{

constexpr auto blind = Qt::CaseInsensitive;

// A folder with its last backslash, levels folders up.
QString upFrom(const QString &folder, int levels)
{
    QString result = folder;
    for (int level = 0; level < levels; ++level) {
        result = left(result, instrRev(result, QStringLiteral("\\"), int(result.size()) - 1));
    }
    return result;
}

// Textures named from a common folder further up: the texture's first folder is looked for in
// the geometry's folder; when it is not there, the geometry's path is climbed count more steps.
QString sharedFolderPrefix(const QString &texture,
                           const QString &base,
                           const QString &geometryPath,
                           int count)
{
    const QString firstFolder = left(texture, instr(1, texture, QStringLiteral("\\")));
    const int at = instr(1, base, firstFolder, blind);
    if (at > 0) {
        return left(base, at - 1);
    }
    int cut = instrRev(geometryPath, QStringLiteral("\\"));
    for (int level = 0; level < count; ++level) {
        cut = instrRev(geometryPath, QStringLiteral("\\"), cut - 1);
    }
    return left(base, cut);
}

} // namespace

int CountParents(const QString &value)
{
    for (int count = 5; count >= 1; --count) {
        if (value.startsWith(QStringLiteral("..\\").repeated(count), blind)) {
            return count;
        }
    }
    return 0;
}

QString dropMarker(const QString &value)
{
    const int bracket = instr(1, value, QStringLiteral("["));
    if (bracket == 1) {
        return mid(value, 5);
    }
    if (bracket > 1) {
        return left(value, bracket - 1) + mid(value, bracket + 4);
    }
    return value;
}

TexturePlace placeTexture(const QString &texture,
                          const QString &base,
                          const QString &geometryPath,
                          const QString &previousPrefix)
{
    TexturePlace place{previousPrefix, texture};
    if (texture.startsWith(QStringLiteral("text"), blind)) {
        // keeps the prefix of the line before
    } else if (!texture.startsWith(QStringLiteral("..\\"))) {
        place.prefix = base;
    } else {
        const int count = CountParents(texture);
        place.name = mid(texture, 3 * count + 1);
        if (count == 1 || count == 3) {
            place.prefix = upFrom(base, 1);
        } else if (count == 2) {
            place.prefix = upFrom(base, 2);
        } else {
            place.prefix = sharedFolderPrefix(place.name, base, geometryPath, count);
        }
    }
    if (place.prefix.isEmpty()) {
        place.prefix = base;
    }
    return place;
}

} // namespace routes
