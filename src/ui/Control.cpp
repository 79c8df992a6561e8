#include "ui/Control.h"

#include <vector>

namespace ui
{

void Control::setCaption(const QString &caption)
{
    if (m_caption != caption) {
        m_caption = caption;
        changed();
    }
}

void Control::setVisible(bool visible)
{
    if (m_visible != visible) {
        m_visible = visible;
        changed();
    }
}

void Control::setEnabled(bool enabled)
{
    if (m_enabled != enabled) {
        m_enabled = enabled;
        changed();
    }
}

void Control::setToolTip(const QString &tip)
{
    m_toolTip = tip;
    changed();
}

void Control::setBold(bool bold)
{
    if (m_bold != bold) {
        m_bold = bold;
        changed();
    }
}

void Control::setForeColor(int color)
{
    if (m_foreColor != color) {
        m_foreColor = color;
        changed();
    }
}

Control &Control::onClick(std::function<void()> handler)
{
    m_click = std::move(handler);
    return *this;
}

Control &Control::onDblClick(std::function<void()> handler)
{
    m_dblClick = std::move(handler);
    return *this;
}

Control &Control::onChange(std::function<void()> handler)
{
    m_change = std::move(handler);
    return *this;
}

Control &Control::onKeyPress(std::function<void(int &)> handler)
{
    m_keyPress = std::move(handler);
    return *this;
}

Control &Control::onGotFocus(std::function<void()> handler)
{
    m_gotFocus = std::move(handler);
    return *this;
}

Control &Control::onRightClick(std::function<void()> handler)
{
    m_rightClick = std::move(handler);
    return *this;
}

void Control::fireClick()
{
    if (m_click) {
        m_click();
    }
}

void Control::fireDblClick()
{
    if (m_dblClick) {
        m_dblClick();
    }
}

void Control::fireChange()
{
    if (m_change) {
        m_change();
    }
}

void Control::fireKeyPress(int &keyAscii)
{
    if (m_keyPress) {
        m_keyPress(keyAscii);
    }
}

void Control::fireGotFocus()
{
    if (m_gotFocus) {
        m_gotFocus();
    }
}

void Control::fireRightClick()
{
    if (m_rightClick) {
        m_rightClick();
    }
}

int Control::subscribe(std::function<void()> observer)
{
    const int id = m_nextObserver++;
    m_observers.emplace(id, std::move(observer));
    return id;
}

void Control::unsubscribe(int id)
{
    m_observers.erase(id);
}

void Control::changed()
{
    // An observer may unsubscribe while being told; walk a copy of the ids.
    std::vector<int> ids;
    for (const auto &entry : m_observers) {
        ids.push_back(entry.first);
    }
    for (const int id : ids) {
        const auto it = m_observers.find(id);
        if (it != m_observers.end()) {
            it->second();
        }
    }
}

} // namespace ui
