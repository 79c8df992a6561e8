#pragma once
// A progress bar or a slider: a value between a minimum and a maximum. A slider's change of value
// fires Change.

#include "ui/Control.h"

namespace ui
{

class ProgressBar : public Control
{
public:
    QString kind() const override { return QStringLiteral("ProgressBar"); }

    int min() const { return m_min; }

    int max() const { return m_max; }

    int value() const { return m_value; }

    void setRange(int min, int max)
    {
        m_min = min;
        m_max = max;
        changed();
    }

    void setValue(int value)
    {
        if (m_value != value) {
            m_value = value;
            changed();
            fireChange();
        }
    }

    QStringList dumpRows() const override { return {QString::number(m_value)}; }

private:
    int m_min = 0;
    int m_max = 100;
    int m_value = 0;
};

class Slider : public ProgressBar
{
public:
    QString kind() const override { return QStringLiteral("Slider"); }
};

} // namespace ui
