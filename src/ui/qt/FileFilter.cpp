#include "ui/qt/FileFilter.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

// "*.*" means every file where names have a dot; on other disks "*" is the only form that
// also matches a name without one.
QString patternList(const QString &patterns)
{
    QStringList out;
    for (const QString &part : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString pattern = part.trimmed();
        out.append(pattern == u"*.*"_s ? u"*"_s : pattern);
    }
    if (out.isEmpty()) {
        out.append(u"*"_s);
    }
    return out.join(QLatin1Char(' '));
}

// A label may already list its patterns ("Binary files (*.bin)"); Qt reads the last bracket as
// the patterns, so that part gives way to the real ones.
QString bareLabel(const QString &label)
{
    QString text = label.trimmed();
    if (text.endsWith(QLatin1Char(')'))) {
        const qsizetype open = text.lastIndexOf(QLatin1Char('('));
        if (open > 0) {
            text = text.left(open).trimmed();
        }
    }
    return text;
}

} // namespace

QString toQtFilter(const QString &filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString label = bareLabel(parts.at(i));
        const QString patterns = patternList(parts.at(i + 1));
        entries.append(label.isEmpty() ? u"("_s + patterns + u")"_s
                                       : label + u" ("_s + patterns + u")"_s);
    }
    if (entries.isEmpty() && !filter.trimmed().isEmpty() && parts.size() == 1) {
        // A lone pattern without a label.
        entries.append(u"("_s + patternList(filter) + u")"_s);
    }
    return entries.join(u";;"_s);
}

} // namespace uiqt
