#pragma once
// An option button; the options of one group exclude each other. Setting one, by the user or the
// program, fires its Click, as the original control does.

#include "ui/Control.h"

#include <functional>

namespace ui
{

class OptionButton : public Control
{
public:
    QString kind() const override { return QStringLiteral("OptionButton"); }

    bool value() const { return m_value; }

    void setValue(bool value)
    {
        if (m_value == value) {
            return;
        }
        m_value = value;
        changed();
        if (value) {
            if (m_exclude) {
                m_exclude(*this);
            }
            fireClick();
        }
    }

    void click() { setValue(true); }

    // Set by the window: clears the other options of this option's group.
    void setExclusion(std::function<void(OptionButton &)> exclude)
    {
        m_exclude = std::move(exclude);
    }

    // Shown after the caption in a transcript: "[0]" or "[1]".
    QString dumpValue() const override
    {
        return QStringLiteral("[") + QString::number(m_value ? 1 : 0) + QStringLiteral("]");
    }

private:
    bool m_value = false;
    std::function<void(OptionButton &)> m_exclude;
};

} // namespace ui
