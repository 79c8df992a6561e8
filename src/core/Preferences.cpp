#include "core/Preferences.h"

#include <QStringList>

#include <limits>

namespace core
{

namespace
{

QString quotedField(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// Splits the delimited fields: quoted text may hold commas; the quote itself cannot be in a field.
QStringList splitFields(const QString &line)
{
    QStringList fields;
    QString field;
    bool inQuotes = false;
    bool wasQuoted = false;
    for (const QChar c : line) {
        if (c == u'"') {
            inQuotes = !inQuotes;
            wasQuoted = true;
        } else if (c == u',' && !inQuotes) {
            fields.append(wasQuoted ? field : field.trimmed());
            field.clear();
            wasQuoted = false;
        } else if (inQuotes || (c != u'\r' && c != u'\n')) {
            if (inQuotes || !wasQuoted) {
                field += c;
            }
        }
    }
    fields.append(wasQuoted ? field : field.trimmed());
    return fields;
}

bool toShort(const QString &field, int &out)
{
    bool ok = false;
    const int value = field.toInt(&ok);
    if (!ok || value < std::numeric_limits<qint16>::min()
        || value > std::numeric_limits<qint16>::max()) {
        return false;
    }
    out = value;
    return true;
}

bool toTruth(const QString &field, bool &out)
{
    const QString word = field.trimmed().toUpper();
    if (word == QStringLiteral("#TRUE#")) {
        out = true;
    } else if (word == QStringLiteral("#FALSE#")) {
        out = false;
    } else {
        return false;
    }
    return true;
}

} // namespace

QString formatPreferences(const Preferences &prefs)
{
    const QStringList fields{QString::number(prefs.width),
                             QString::number(prefs.height),
                             QString::number(prefs.top),
                             QString::number(prefs.left),
                             quotedField(prefs.GraphicsEditorPath),
                             quotedField(prefs.ViewerPath),
                             quotedField(prefs.RailSimPath),
                             prefs.DefaultEditorIsTree ? QStringLiteral("#TRUE#")
                                                       : QStringLiteral("#FALSE#"),
                             quotedField(prefs.ReservedText),
                             quotedField(prefs.AcrobatPath)};
    return fields.join(QLatin1Char(',')) + QStringLiteral("\r\n");
}

std::optional<Preferences> parsePreferences(const QString &text)
{
    const QString line = text.section(QLatin1Char('\n'), 0, 0);
    const QStringList fields = splitFields(line);
    Preferences prefs;
    if (!toShort(fields.value(0), prefs.width) || !toShort(fields.value(1), prefs.height)
        || !toShort(fields.value(2), prefs.top) || !toShort(fields.value(3), prefs.left)) {
        return std::nullopt;
    }
    prefs.GraphicsEditorPath = fields.value(4);
    prefs.ViewerPath = fields.value(5);
    prefs.RailSimPath = fields.value(6);
    if (!toTruth(fields.value(7), prefs.DefaultEditorIsTree)) {
        return prefs;
    }
    prefs.ReservedText = fields.value(8);
    prefs.AcrobatPath = fields.value(9);
    return prefs;
}

} // namespace core
