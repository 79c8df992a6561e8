#include "textures/TextureText.h"

namespace textures
{

namespace
{

const QString blobOpen = QStringLiteral("<d:blob");
const QString blobClose = QStringLiteral("</d:blob");

} // namespace

qint64 leadingNumber(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && (text[i] == u' ' || text[i] == u'\t')) {
        ++i;
    }
    bool negative = false;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
        negative = text[i] == u'-';
        ++i;
    }
    qint64 value = 0;
    for (; i < text.size() && text[i].isDigit() && value < (qint64(1) << 40); ++i) {
        value = value * 10 + text[i].digitValue();
    }
    return negative ? -value : value;
}

QString formatText(const QString &xml)
{
    const qsizetype tag = xml.indexOf(QStringLiteral("<Format"));
    if (tag < 0) {
        return {};
    }
    const qsizetype start = xml.indexOf(u'>', tag);
    const qsizetype end = xml.indexOf(QStringLiteral("</Format"), tag);
    if (start < 0 || end < 0 || end <= start) {
        return {};
    }
    return xml.mid(start + 1, end - start - 1);
}

int elementNumber(const QString &xml, const QString &name)
{
    const qsizetype tag = xml.indexOf(u'<' + name);
    if (tag < 0) {
        return 0;
    }
    const qsizetype start = xml.indexOf(u'>', tag);
    const qsizetype end = start < 0 ? -1 : xml.indexOf(u'<', start);
    if (end < 0) {
        return 0;
    }
    return int(leadingNumber(QStringView(xml).mid(start + 1, end - start - 1)));
}

TextureText scanTextureText(const QString &xml)
{
    TextureText texture;
    texture.format = formatText(xml);
    texture.width = elementNumber(xml, QStringLiteral("Width"));
    texture.height = elementNumber(xml, QStringLiteral("Height"));

    qsizetype pieceStart = 0;
    qsizetype from = 0;
    for (;;) {
        const qsizetype open = xml.indexOf(blobOpen, from);
        if (open < 0) {
            break;
        }
        const qsizetype firstQuote = xml.indexOf(u'"', open);
        const qsizetype secondQuote = firstQuote < 0 ? -1 : xml.indexOf(u'"', firstQuote + 1);
        const qsizetype close = secondQuote < 0 ? -1 : xml.indexOf(blobClose, secondQuote);
        if (close < 0) {
            break;
        }
        BlobLevel level;
        level.size =
            leadingNumber(QStringView(xml).mid(firstQuote + 1, secondQuote - firstQuote - 1));
        // The hexadecimal text starts two characters after the closing quote, past the ">".
        level.hexStart = qMin(secondQuote + 2, close);
        level.hexEnd = close;
        texture.pieces.append(xml.mid(pieceStart, level.hexStart - pieceStart));
        texture.levels.append(level);
        pieceStart = close;
        from = close + blobClose.size();
    }
    texture.pieces.append(xml.mid(pieceStart));
    return texture;
}

} // namespace textures
