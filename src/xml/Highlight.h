#pragma once
// XML shown in colour in a rich text box: tags in one colour, attribute names and values in two
// others, comments grey, element text plain. The rich text is made with regular expressions over
// the plain text; two corrections are then applied to the loaded box.

#include <QString>
#include <QStringList>

namespace ui
{
class RichText;
}

namespace xml
{

// The five colours as red, green and blue in six hexadecimal digits: plain text, tags, attribute
// names, attribute values, comments.
const QStringList &HighlightColours();

// "\redR\greenG\blueB" for a colour given as six hexadecimal digits, red first.
QString fcnGetRTFColor(const QString &rrggbb);
QString fcnGetRTFColor(int rrggbb);

// A regular-expression replacement of every hit, case-blind; "$1" to "$9" in the replacement
// stand for the groups, "$&" for the hit, "$$" for a dollar sign.
QString ReplaceText(const QString &pattern, const QString &replacement, const QString &text);

// The rich text for a plain XML text.
QString colorhtml(const QString &text);

// The corrections on the loaded box: element text that holds "=" goes back to the plain
// colour, comments take the comment colour.
void correctHighlight(ui::RichText &box);

} // namespace xml
