#include "core/platform/Utf16Le.h"

namespace platform
{

QString Utf16Le::decode(QByteArrayView bytes)
{
    qsizetype start = 0;
    if (bytes.size() >= 2 && static_cast<unsigned char>(bytes[0]) == 0xFF
        && static_cast<unsigned char>(bytes[1]) == 0xFE) {
        start = 2;
    }
    const qsizetype count = (bytes.size() - start) / 2;
    QString text(count, Qt::Uninitialized);
    QChar *out = text.data();
    for (qsizetype i = 0; i < count; ++i) {
        const auto lo = static_cast<unsigned char>(bytes[start + 2 * i]);
        const auto hi = static_cast<unsigned char>(bytes[start + 2 * i + 1]);
        out[i] = QChar(static_cast<char16_t>(lo | (hi << 8)));
    }
    return text;
}

QByteArray Utf16Le::encode(QStringView text, Bom bom)
{
    QByteArray bytes;
    bytes.reserve(2 * text.size() + 2);
    if (bom == Bom::Write) {
        bytes.append('\xFF').append('\xFE');
    }
    for (const QChar c : text) {
        bytes.append(static_cast<char>(c.unicode() & 0xFF));
        bytes.append(static_cast<char>(c.unicode() >> 8));
    }
    return bytes;
}

} // namespace platform
