#include "core/platform/Cp1252.h"

#include <array>

namespace platform
{

namespace
{

// 0x80..0x9F; the five bytes the code page leaves unassigned stand for the C1 control of the same
// number, so that every byte survives a round trip.
constexpr std::array<char16_t, 32> High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char encodeOne(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (std::size_t i = 0; i < High.size(); ++i) {
        if (High[i] == c) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

} // namespace

QString Cp1252::decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        *out++ = QChar(u >= 0x80 && u < 0xA0 ? High[u - 0x80] : char16_t(u));
    }
    return text;
}

QByteArray Cp1252::encode(QStringView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        // A character beyond the basic plane is one character: one '?'.
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
            bytes.append('?');
            continue;
        }
        bytes.append(encodeOne(c.unicode()));
    }
    return bytes;
}

} // namespace platform
