#include "routes/content_model/CatalogueEntry.h"

#include "core/TextPrimitives.h"

using core::instr;
using core::instrRev;
using core::left;
using core::mid;

namespace routes
{

namespace
{

QString removeEntry(const QString &text, const QString &key, const QString &element)
{
    constexpr auto blind = Qt::CaseInsensitive;
    const QString opening = QLatin1Char('<') + element;
    const QString closing = QStringLiteral("</") + element + QLatin1Char('>');
    const int hit = instr(1, text, key, blind);
    const int start = instrRev(text, opening, hit, blind);
    const int next = instr(hit, text, opening, blind);
    if (next > 0) {
        return left(text, start - 1) + mid(text, next - 1);
    }
    return left(text, start - 1)
        + mid(text, instr(hit, text, closing, blind) + int(closing.size()));
}

} // namespace

QString RemoveScenarioEntry(const QString &text, const QString &key)
{
    return removeEntry(text, key, QStringLiteral("cScenarioProperties"));
}

QString RemoveRouteEntry(const QString &text, const QString &key)
{
    return removeEntry(text, key, QStringLiteral("cRouteProperties"));
}

} // namespace routes
