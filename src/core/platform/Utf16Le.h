#pragma once
// Files the program reads and writes as Unicode: UTF-16 little-endian, with the byte-order mark
// that Windows writes at the start.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace platform
{

class Utf16Le
{
public:
    enum class Bom { Write, Omit };

    // A leading byte-order mark is skipped; an odd last byte is dropped.
    static QString decode(QByteArrayView bytes);
    static QByteArray encode(QStringView text, Bom bom = Bom::Write);
};

} // namespace platform
