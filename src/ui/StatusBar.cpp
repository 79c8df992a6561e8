#include "ui/StatusBar.h"

#include "core/platform/Failure.h"

namespace ui
{

void StatusBar::check(int n) const
{
    if (n < 1 || n > panelCount()) {
        throw platform::Failure(35600, QStringLiteral("Index out of bounds"));
    }
}

int StatusBar::addPanel(const StatusPanel &panel)
{
    m_panels.append(panel);
    changed();
    return panelCount();
}

const StatusPanel &StatusBar::panel(int n) const
{
    check(n);
    return m_panels.at(n - 1);
}

void StatusBar::setPanel(int n, const StatusPanel &panel)
{
    check(n);
    m_panels[n - 1] = panel;
    changed();
}

void StatusBar::setPanelText(int n, const QString &text)
{
    check(n);
    m_panels[n - 1].text = text;
    changed();
}

void StatusBar::clearPanels()
{
    m_panels.clear();
    changed();
}

QStringList StatusBar::dumpRows() const
{
    QStringList rows;
    for (const StatusPanel &p : m_panels) {
        // A time panel shows the clock; a transcript must not depend on it.
        rows.append(p.style == StatusPanel::Style::Text ? p.text : QStringLiteral("(time)"));
    }
    return rows;
}

} // namespace ui
