#pragma once
// A tab control: tab captions and the tab on show. Changing the tab, by the user or the program,
// fires Click, as the original control does; the tab that was on show is kept for the handler.

#include "ui/Control.h"

namespace ui
{

class TabStrip : public Control
{
public:
    QString kind() const override { return QStringLiteral("TabStrip"); }

    const QStringList &tabCaptions() const { return m_captions; }

    void setTabCaptions(const QStringList &captions)
    {
        m_captions = captions;
        changed();
    }

    int tab() const { return m_tab; }

    int previousTab() const { return m_previous; }

    void setTab(int tab)
    {
        if (m_tab == tab) {
            return;
        }
        m_previous = m_tab;
        m_tab = tab;
        changed();
        fireClick();
    }

    QStringList dumpRows() const override { return {QString::number(m_tab)}; }

private:
    QStringList m_captions;
    int m_tab = 0;
    int m_previous = 0;
};

} // namespace ui
