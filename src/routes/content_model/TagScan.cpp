#include "routes/content_model/TagScan.h"

#include "core/TextPrimitives.h"

using core::instr;
using core::instrRev;
using core::mid;

namespace routes
{

namespace
{

constexpr auto blind = Qt::CaseInsensitive;

// Provider and product by the same cut, with the tags compared as asked.
void providerProduct(
    int pos, QString &provider, QString &product, const QString &text, Qt::CaseSensitivity cs)
{
    const int tag = instrRev(text, QStringLiteral("<Provider"), pos, cs);
    const int open = instr(tag, text, QStringLiteral(">"));
    const int end = instr(open, text, QStringLiteral("<"));
    provider = mid(text, open + 1, end - open - 1);
    const int productTag = instr(end, text, QStringLiteral("<Product"), cs);
    const int productOpen = instr(productTag, text, QStringLiteral(">"));
    const int productEnd = instr(productOpen, text, QStringLiteral("<"));
    product = mid(text, productOpen + 1, productEnd - productOpen - 1);
}

void replaceWhileAny(QString &text, const QString &find, const QString &with, bool &changed)
{
    while (instr(1, text, find, blind) > 0) {
        text = core::replaceAll(text, find, with, blind);
        changed = true;
    }
}

} // namespace

QString ScanValue(const QString &text, const QString &tagPrefix, int start)
{
    const int tag = instr(start, text, tagPrefix, blind);
    const int open = instr(tag, text, QStringLiteral(">"));
    const int end = instr(open + 1, text, QStringLiteral("<"));
    return mid(text, open + 1, end - open - 1);
}

void GetTagValue(const QString &text, int &pos, const QString &tag, QString &value)
{
    const int hit = instr(pos, text, QLatin1Char('<') + tag, blind);
    if (hit == 0) {
        pos = 0;
        return;
    }
    const int open = instr(hit, text, QStringLiteral(">"));
    const int close = instr(open, text, QStringLiteral("</") + tag, blind);
    value = mid(text, open + 1, close - open - 1);
    pos = close;
}

void GetStringValue(const QString &text, int &pos, const QString &attribute, QString &value)
{
    const int hit = instr(pos, text, QStringLiteral("=\"") + attribute + QLatin1Char('"'), blind);
    if (hit == 0) {
        pos = 0;
        return;
    }
    const int open = instr(hit, text, QStringLiteral(">"));
    const int close = instr(open, text, QStringLiteral("</e"), blind);
    value = mid(text, open + 1, close - open - 1);
    pos = close;
}

void GetProviderProduct(int pos, QString &provider, QString &product, const QString &text)
{
    providerProduct(pos, provider, product, text, blind);
}

void GetProviderProductExact(int pos, QString &provider, QString &product, const QString &text)
{
    providerProduct(pos, provider, product, text, Qt::CaseSensitive);
}

bool FixEntities(QString &path)
{
    bool changed = false;
    replaceWhileAny(path, QStringLiteral("&apos;"), QStringLiteral("'"), changed);
    replaceWhileAny(path, QStringLiteral("&amp;"), QStringLiteral("&"), changed);
    replaceWhileAny(path, QStringLiteral("\u00ef\u00bf\u0178"), QStringLiteral("\u00df"), changed);
    replaceWhileAny(path, QStringLiteral("\u00ef\u00bf\u00bc"), QStringLiteral("\u00fc"), changed);
    replaceWhileAny(path, QStringLiteral("\u00ef\u00bf\u00a4"), QStringLiteral("\u00e4"), changed);
    return changed;
}

} // namespace routes
