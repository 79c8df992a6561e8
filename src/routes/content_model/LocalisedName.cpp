#include "routes/content_model/LocalisedName.h"

#include "core/TextPrimitives.h"

#include <array>

using core::instr;
using core::instrRev;
using core::mid;

namespace routes
{

LocalisedName readLocalisedName(const QString &text, int from)
{
    static const std::array<QString, 5> languages{QStringLiteral("English"),
                                                  QStringLiteral("French"),
                                                  QStringLiteral("Italian"),
                                                  QStringLiteral("German"),
                                                  QStringLiteral("Spanish")};
    constexpr auto blind = Qt::CaseInsensitive;
    LocalisedName result;
    int start = from;
    for (const QString &language : languages) {
        const int hit = instr(start, text, QLatin1Char('<') + language, blind);
        const int close = instr(hit, text, QStringLiteral("</") + language, blind);
        const int open = instrRev(text, QStringLiteral(">"), close - 1);
        result.name = mid(text, open + 1, close - open - 1);
        result.lastClose = close;
        if (!result.name.isEmpty()) {
            break;
        }
        start = hit;
    }
    return result;
}

} // namespace routes
