#include "xml/Highlight.h"

#include "ui/RichText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace xml
{

namespace
{

// The colour the box is given for a colour of the table, as 0x00BBGGRR.
int boxColor(const QString &rrggbb)
{
    const int value = rrggbb.toInt(nullptr, 16);
    const int red = (value >> 16) & 0xFF;
    const int green = (value >> 8) & 0xFF;
    const int blue = value & 0xFF;
    return (blue << 16) | (green << 8) | red;
}

void appendReplacement(QString &out,
                       const QString &replacement,
                       const QRegularExpressionMatch &match)
{
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar c = replacement.at(i);
        if (c == QLatin1Char('$') && i + 1 < replacement.size()) {
            const QChar next = replacement.at(i + 1);
            if (next.isDigit() && next != QLatin1Char('0')) {
                out += match.capturedView(next.digitValue());
                ++i;
                continue;
            }
            if (next == QLatin1Char('&')) {
                out += match.capturedView(0);
                ++i;
                continue;
            }
            if (next == QLatin1Char('$')) {
                out += QLatin1Char('$');
                ++i;
                continue;
            }
        }
        out += c;
    }
}

} // namespace

const QStringList &HighlightColours()
{
    static const QStringList colours{
        u"000000"_s, u"C00000"_s, u"C000C0"_s, u"00C000"_s, u"808080"_s};
    return colours;
}

QString fcnGetRTFColor(const QString &rrggbb)
{
    const QString digits = rrggbb.rightJustified(6, QLatin1Char('0')).right(6);
    return u"\\red"_s + QString::number(digits.mid(0, 2).toInt(nullptr, 16)) + u"\\green"_s
        + QString::number(digits.mid(2, 2).toInt(nullptr, 16)) + u"\\blue"_s
        + QString::number(digits.mid(4, 2).toInt(nullptr, 16));
}

QString fcnGetRTFColor(int rrggbb)
{
    return fcnGetRTFColor(QString::number(rrggbb, 16).toUpper());
}

QString ReplaceText(const QString &pattern, const QString &replacement, const QString &text)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    QString out;
    out.reserve(text.size() + text.size() / 2);
    qsizetype done = 0;
    QRegularExpressionMatchIterator it = expression.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        out += QStringView(text).mid(done, match.capturedStart() - done);
        appendReplacement(out, replacement, match);
        done = match.capturedEnd();
    }
    out += QStringView(text).mid(done);
    return out;
}

QString colorhtml(const QString &text)
{
    QStringList table;
    for (const QString &colour : HighlightColours()) {
        table.append(fcnGetRTFColor(colour));
    }
    const QString head =
        u"{\\richtextbox1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss MS Sans Serif;}}"_s
        + u"\r\n"_s + u"{\\colortbl"_s + table.join(QLatin1Char(';')) + u"}"_s + u"\r\n"_s
        + u"\\deflang1033\\pard\\plain\\f0\\fs22 "_s;
    QString body = ReplaceText(u"([{}\\\\])"_s, u"\\$1"_s, text);
    body = ReplaceText(u"(\\r)"_s, u"\\par \\r"_s, body);
    body = ReplaceText(u"(<[^>]+>)"_s, u"\\plain\\f2\\fs22\\cf1 $1\\plain\\f2\\fs22\\cf0 "_s, body);
    body =
        ReplaceText(u"( \\w[\\w\\d\\s:_\\-\\.]* *= *)(\"[^\"]+\"|'[^']+'|\\d+)"_s,
                    u"\\plain\\f2\\fs22\\cf2 $1\\plain\\f2\\fs22\\cf3 $2\\plain\\f2\\fs22\\cf1 "_s,
                    body);
    return head + u"\\plain\\f2\\fs22\\cf0 "_s + body + u"\r\n"_s
        + u"\\par \\plain\\f2\\fs22\\cf0"_s + u"\\par }"_s;
}

void correctHighlight(ui::RichText &box)
{
    const QString text = box.text();
    static const QRegularExpression equalsInText(u">[^<]*=[^>]*<"_s);
    QRegularExpressionMatchIterator it = equalsInText.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        box.setSelection(int(match.capturedStart()) + 1, int(match.capturedLength()) - 2);
        box.setSelColor(boxColor(HighlightColours().at(0)));
    }
    static const QRegularExpression comment(u"<!--[\\w\\W]+?-->"_s);
    it = comment.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        box.setSelection(int(match.capturedStart()), int(match.capturedLength()));
        box.setSelColor(boxColor(HighlightColours().at(4)));
    }
}

} // namespace xml
