#include "xml/TidyXmlFile.h"

#include "core/Services.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "ui/Host.h"

using namespace Qt::StringLiterals;

namespace xml
{

namespace
{

// Characters 243 and 252 of the code page, and (since the comparison is case-blind) their
// capitals 211 and 220.
QChar plainLetter(QChar c)
{
    switch (c.unicode()) {
    case 0xF3:
    case 0xD3:
        return QLatin1Char('o');
    case 0xFC:
    case 0xDC:
        return QLatin1Char('u');
    default:
        return c;
    }
}

} // namespace

QString tidyLine(const QString &line, bool &mismatched)
{
    QString out = line;
    const int open = core::instr(out, u"<"_s);
    if (open > 1) {
        out = QString(open - 1, QLatin1Char('\t')) + core::mid(out, open);
    }
    const int close = core::instrRev(out, u">"_s);
    if (close > 0 && close < out.size()) {
        out = core::left(out, close);
    }
    for (QChar &c : out) {
        c = plainLetter(c);
    }
    mismatched = (open == 0 && close > 0) || (open > 0 && close == 0);
    return out;
}

void TidyXmlFile(core::Session &session, const QString &path)
{
    ui::Host &host = session.host;
    const QStringList lines = session.services.ReadLines(path);
    QString text;
    int counter = 0;
    for (const QString &line : lines) {
        bool mismatched = false;
        const QString tidied = tidyLine(line, mismatched);
        ++counter;
        if (mismatched) {
            host.msgBox(u"There are mis-matched '<' tags in Line "_s + QString::number(counter),
                        ui::Buttons::OK,
                        ui::Icon::Exclamation,
                        host.appTitle());
        }
        text += tidied + u"\r\n"_s;
    }
    host.yield();
    session.services.WriteFile(path, text);
    host.yield();
}

} // namespace xml
