#pragma once
// A check box: a caption and a value of 0 (clear), 1 (checked) or 2 (greyed). A change of value,
// by the user or the program, fires Click, as the original control does.

#include "ui/Control.h"

namespace ui
{

class CheckBox : public Control
{
public:
    QString kind() const override { return QStringLiteral("CheckBox"); }

    int value() const { return m_value; }

    bool checked() const { return m_value == 1; }

    void setValue(int value)
    {
        if (m_value != value) {
            m_value = value;
            changed();
            fireClick();
        }
    }

    // A user's click toggles the box.
    void click() { setValue(m_value == 1 ? 0 : 1); }

    // Shown after the caption in a transcript: "[0]" or "[1]".
    QString dumpValue() const override
    {
        return QStringLiteral("[") + QString::number(m_value) + QStringLiteral("]");
    }

private:
    int m_value = 0;
};

} // namespace ui
