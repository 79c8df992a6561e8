#include "core/XmlDetail.h"

#include "core/TextPrimitives.h"
#include "core/platform/Failure.h"

namespace core
{

void PutDetail(QString &text, int &pos, const QString &tag, const QString &newValue)
{
    // A missing piece makes the next search start at 0, which fails: the text stays as it was.
    try {
        const int open = instr(pos, text, u'<' + tag);
        const int close = instr(open, text, QStringLiteral(">"));
        const int end = instr(close, text, QStringLiteral("</") + tag);
        text = left(text, close) + newValue + mid(text, end);
        pos = end;
    } catch (const platform::Failure &) {
        pos = 0;
    }
}

void GetDetail(const QString &text, int &pos, const QString &tag, QString &value)
{
    try {
        const int open = instr(pos, text, u'<' + tag);
        if (open == 0) {
            pos = 0;
            return;
        }
        const int close = instr(open, text, QStringLiteral(">"));
        const int end = instr(close, text, QStringLiteral("</") + tag);
        value = mid(text, close + 1, end - close - 1);
        pos = end;
    } catch (const platform::Failure &) {
        pos = 0;
    }
}

} // namespace core
