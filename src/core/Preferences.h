#pragma once
// preferences.txt: one line of ten fields in the delimited form of a Write statement (numbers bare,
// text in double quotes, truth values as #TRUE# and #FALSE#), ended by CR LF.

#include <QString>

#include <optional>

namespace core
{

struct Preferences {
    int width = 0; // twips, 16-bit
    int height = 0;
    int top = 0;
    int left = 0;
    QString GraphicsEditorPath;
    QString ViewerPath;
    QString RailSimPath;
    bool DefaultEditorIsTree = false;
    QString ReservedText;
    QString AcrobatPath;
};

// The line as the program writes it, CR LF included.
QString formatPreferences(const Preferences &prefs);

// Reads what it can: a field that does not parse, and every field after it, keeps its empty
// value; nothing here fails. Gives no value when the four
// window measures do not parse.
std::optional<Preferences> parsePreferences(const QString &text);

} // namespace core
