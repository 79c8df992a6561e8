#include "core/NewGuid.h"

#include "core/HexToDec.h"

namespace core
{

namespace
{

QString hex(quint64 value, int width)
{
    return QStringLiteral("%1").arg(value, width, 16, QChar(u'0')).toUpper();
}

} // namespace

QString GuidForms(const QUuid &guid, QString &first, QString &second)
{
    QString text = hex(guid.data1, 8) + u'-' + hex(guid.data2, 4) + u'-' + hex(guid.data3, 4) + u'-'
        + hex(guid.data4[0], 2) + hex(guid.data4[1], 2) + u'-';
    for (int i = 2; i < 8; ++i) {
        text += hex(guid.data4[i], 2);
    }
    // The game's two numbers are built from the parts written without their leading zeros; the
    // numbers then differ from the GUID's bytes, and that is the form the files hold.
    first = HexToDec(hex(guid.data3, 0) + hex(guid.data2, 0) + hex(guid.data1, 0));
    QString tail;
    for (int i = 7; i >= 0; --i) {
        tail += hex(guid.data4[i], 0);
    }
    second = HexToDec(tail);
    return text;
}

QString NewGuid(QString &first, QString &second)
{
    const QUuid guid = QUuid::createUuid();
    if (guid.isNull()) {
        return {};
    }
    return GuidForms(guid, first, second);
}

} // namespace core
