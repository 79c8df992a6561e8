#include "textures/DdsExport.h"

#include "textures/DdsHeader.h"
#include "textures/TextureText.h"

namespace textures
{

namespace
{

const QString sorry =
    QStringLiteral("Sorry, unable to convert files of the following type at this time:-");

platform::Error refusal(const QString &message)
{
    return platform::Error{platform::InvalidArgument, message};
}

// A digit's value as the program's Hex2Dec counts it: an unknown character counts as -1.
int hexDigit(char16_t c)
{
    if (c >= u'0' && c <= u'9') {
        return c - u'0';
    }
    if (c >= u'A' && c <= u'F') {
        return c - u'A' + 10;
    }
    if (c >= u'a' && c <= u'f') {
        return c - u'a' + 10;
    }
    return -1;
}

// Joins the levels' text, without blanks, CR and LF, and writes each two digits as one byte from
// offset 128 on. False when a pair is no byte or there are more bytes than the sizes allow.
bool writeLevels(const QString &xml, const TextureText &texture, QByteArray &dds)
{
    qsizetype out = ddsHeaderSize;
    int high = 0;
    bool haveHigh = false;
    for (const BlobLevel &level : texture.levels) {
        const char16_t *text = reinterpret_cast<const char16_t *>(xml.constData());
        for (qsizetype i = level.hexStart; i < level.hexEnd; ++i) {
            const char16_t c = text[i];
            if (c == u' ' || c == u'\r' || c == u'\n') {
                continue;
            }
            const int digit = hexDigit(c);
            if (!haveHigh) {
                high = digit;
                haveHigh = true;
                continue;
            }
            haveHigh = false;
            if (digit < 0 || high < 0 || out >= dds.size()) {
                return false;
            }
            dds[out++] = char(high * 16 + digit);
        }
    }
    return true;
}

} // namespace

platform::Result<DdsExport> exportDds(const QString &xml, const QString &originalPath)
{
    const TextureText texture = scanTextureText(xml);
    DdsExport result;
    result.format = findTextureFormat(texture.format);
    if (result.format == nullptr) {
        return refusal(sorry + u' ' + texture.format + QStringLiteral("\r\n"));
    }
    result.levels = int(texture.levels.size());
    if (result.levels > maxLevels) {
        return refusal(sorry + QStringLiteral("Multiple-Texture file.\r\n"));
    }
    if (result.levels == 0) {
        return refusal(QStringLiteral("No picture data (d:blob) was found in this texture."));
    }
    qint64 total = ddsHeaderSize;
    for (const BlobLevel &level : texture.levels) {
        if (level.size <= 0 || level.size > (qint64(1) << 30)) {
            return refusal(
                QStringLiteral("The size of a picture level of this texture is damaged."));
        }
        total += level.size;
        result.header.sizes.append(level.size);
    }
    result.dds = makeDdsHeader(
        *result.format, texture.width, texture.height, result.levels, texture.levels.first().size);
    result.dds.resize(total, '\0');
    if (!writeLevels(xml, texture, result.dds)) {
        return refusal(QStringLiteral(
            "The picture data of this texture is damaged: it is not hexadecimal text of the "
            "sizes its levels give."));
    }
    result.header.pieces = texture.pieces;
    result.header.originalPath = originalPath;
    return result;
}

} // namespace textures
