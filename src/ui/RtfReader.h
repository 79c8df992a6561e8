#pragma once
// Reads rich text (RTF) into plain text and coloured runs: groups, the colour table, \cf, \b,
// \plain, \par, \tab, escaped characters. Enough for the rich text the program makes itself.

#include <QList>
#include <QString>

namespace ui
{

struct TextRun {
    int start = 0;
    int length = 0;
    int color = -1; // 0x00BBGGRR, -1 for the default colour
    bool bold = false;
};

struct RichTextContent {
    QString text; // paragraphs end in CR LF, as the rich text box gives its text
    QList<TextRun> runs;
};

RichTextContent readRtf(const QString &rtf);

} // namespace ui
