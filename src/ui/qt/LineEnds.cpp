#include "ui/qt/LineEnds.h"

using namespace Qt::StringLiterals;

namespace uiqt
{

QString toEditorText(const QString &programText)
{
    QString text = programText;
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

QString toProgramText(const QString &editorText)
{
    QString text = editorText;
    text.replace(QChar(0x2029), QLatin1Char('\n'));
    text.replace(u"\n"_s, u"\r\n"_s);
    return text;
}

int toEditorPos(const QString &programText, int programPos)
{
    int pos = 0;
    const int end = qMin(programPos, int(programText.size()));
    for (int i = 0; i < end; ++i) {
        // The LF of a CR LF pair has no place of its own in the editor.
        if (!(programText.at(i) == QLatin1Char('\n') && i > 0
              && programText.at(i - 1) == QLatin1Char('\r'))) {
            ++pos;
        }
    }
    return pos;
}

int toProgramPos(const QString &programText, int editorPos)
{
    int seen = 0;
    int i = 0;
    const int size = int(programText.size());
    while (i < size && seen < editorPos) {
        if (programText.at(i) == QLatin1Char('\r') && i + 1 < size
            && programText.at(i + 1) == QLatin1Char('\n')) {
            ++i;
        }
        ++i;
        ++seen;
    }
    return i + (editorPos - seen);
}

} // namespace uiqt
