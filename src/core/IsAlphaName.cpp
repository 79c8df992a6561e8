#include "core/IsAlphaName.h"

namespace core
{

bool IsAlphaName(const QString &name)
{
    if (name.isEmpty()) {
        return false;
    }
    for (const QChar c : name) {
        const char16_t u = c.unicode();
        const bool letter = (u >= u'A' && u <= u'Z') || (u >= u'a' && u <= u'z');
        const bool mark =
            u == u'"' || u == u'$' || u == u'\'' || u == u',' || u == u'-' || u == u'.';
        if (!letter && !mark) {
            return false;
        }
    }
    return true;
}

} // namespace core
