#pragma once
// A text box: its text and selection. Setting a different text, by the user or the program, fires
// Change, as the original control does.

#include "ui/Control.h"

namespace ui
{

class TextBox : public Control
{
public:
    QString kind() const override { return QStringLiteral("TextBox"); }

    const QString &text() const { return m_text; }

    void setText(const QString &text)
    {
        if (m_text == text) {
            return;
        }
        m_text = text;
        m_selStart = qMin(m_selStart, int(m_text.size()));
        m_selLength = 0;
        changed();
        fireChange();
    }

    bool locked() const { return m_locked; }

    void setLocked(bool locked) { m_locked = locked; }

    bool multiLine() const { return m_multiLine; }

    void setMultiLine(bool multiLine) { m_multiLine = multiLine; }

    // Selection from 0, as the original control counts it.
    int selStart() const { return m_selStart; }

    int selLength() const { return m_selLength; }

    void setSelection(int start, int length)
    {
        m_selStart = qBound(0, start, int(m_text.size()));
        m_selLength = qBound(0, length, int(m_text.size()) - m_selStart);
        changed();
    }

    QString selText() const { return m_text.mid(m_selStart, m_selLength); }

    QStringList dumpRows() const override { return {m_text}; }

private:
    QString m_text;
    int m_selStart = 0;
    int m_selLength = 0;
    bool m_locked = false;
    bool m_multiLine = false;
};

} // namespace ui
