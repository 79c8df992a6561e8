#pragma once
// A rich text box: plain text with coloured and bold runs, the rich text it was last loaded from,
// a selection and a Find. Setting a different text fires Change, as the original control does.

#include "ui/Control.h"
#include "ui/RtfReader.h"

namespace ui
{

class RichText : public Control
{
public:
    enum FindOption { WholeWord = 2, MatchCase = 4, NoHighlight = 8 };

    QString kind() const override { return QStringLiteral("RichText"); }

    const QString &text() const { return m_text; }

    // Plain text; the colours go.
    void setText(const QString &text);

    // The rich text as it stands: as last loaded, or empty when the box holds plain text.
    const QString &textRtf() const { return m_rtf; }

    void setTextRtf(const QString &rtf);

    const QList<TextRun> &runs() const { return m_runs; }

    int selStart() const { return m_selStart; }

    int selLength() const { return m_selLength; }

    QString selText() const { return m_text.mid(m_selStart, m_selLength); }

    void setSelection(int start, int length);
    // Replaces the selection; the new text is selected-free, the caret after it.
    void setSelText(const QString &text);
    void setSelColor(int color);
    void setSelBold(bool bold);

    // Finds text from start (from 0) to end (-1: the end of the text); gives the position or -1,
    // and selects the hit unless NoHighlight is given. Case-blind unless MatchCase.
    int find(const QString &term, int start = 0, int end = -1, int options = 0);

    QStringList dumpRows() const override { return {m_text}; }

private:
    void setRun(int start, int length, int color, int bold);

    QString m_text;
    QString m_rtf;
    QList<TextRun> m_runs;
    int m_selStart = 0;
    int m_selLength = 0;
};

} // namespace ui
