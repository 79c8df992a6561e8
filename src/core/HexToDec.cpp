#include "core/HexToDec.h"

#include "core/platform/Failure.h"

#include <array>

namespace core
{

namespace
{

// A 96-bit unsigned number in three 32-bit words, least significant first: the width of the
// decimal the conversion runs in.
using Wide = std::array<quint32, 3>;

int digitValue(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9') {
        return u - u'0';
    }
    if (u >= u'a' && u <= u'f') {
        return u - u'a' + 10;
    }
    if (u >= u'A' && u <= u'F') {
        return u - u'A' + 10;
    }
    return -1;
}

// n = n * 16 + digit; false when the result leaves 96 bits.
bool shiftIn(Wide &n, int digit)
{
    if (n[2] >> 28) {
        return false;
    }
    n[2] = (n[2] << 4) | (n[1] >> 28);
    n[1] = (n[1] << 4) | (n[0] >> 28);
    n[0] = (n[0] << 4) | static_cast<quint32>(digit);
    return true;
}

bool isZero(const Wide &n)
{
    return n[0] == 0 && n[1] == 0 && n[2] == 0;
}

// n /= 10, returning the remainder.
int divideByTen(Wide &n)
{
    quint64 remainder = 0;
    for (int i = 2; i >= 0; --i) {
        const quint64 part = (remainder << 32) | n[static_cast<std::size_t>(i)];
        n[static_cast<std::size_t>(i)] = static_cast<quint32>(part / 10);
        remainder = part % 10;
    }
    return static_cast<int>(remainder);
}

} // namespace

QString HexToDec(const QString &hex)
{
    Wide n{0, 0, 0};
    for (const QChar c : hex) {
        if (digitValue(c) < 0) {
            return {};
        }
    }
    for (const QChar c : hex) {
        if (!shiftIn(n, digitValue(c))) {
            platform::raise(platform::Overflow);
        }
    }
    if (isZero(n)) {
        return QStringLiteral("0");
    }
    QString digits;
    while (!isZero(n)) {
        digits.prepend(QChar(u'0' + divideByTen(n)));
    }
    return digits;
}

} // namespace core
