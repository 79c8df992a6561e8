#include "ui/Window.h"

#include "ui/Menu.h"
#include "ui/OptionButton.h"

namespace ui
{

Window::Window(QString name)
    : m_name(std::move(name))
    , m_caption(m_name)
{
}

void Window::setCaption(const QString &caption)
{
    if (m_caption != caption) {
        m_caption = caption;
        changed();
    }
}

void Window::setGeometry(int left, int top, int width, int height)
{
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    changed();
}

Menu &
Window::addMenu(const QString &name, Menu &menu, const QString &parent, const QString &caption)
{
    menu.setParentMenu(parent);
    menu.setCaption(caption);
    return add(name, menu);
}

Control *Window::control(const QString &name) const
{
    for (const Entry &entry : m_controls) {
        if (entry.name.compare(name, Qt::CaseInsensitive) == 0) {
            return entry.control;
        }
    }
    return nullptr;
}

const LayoutHint *Window::layout(const QString &control) const
{
    const auto it = m_layout.find(control);
    return it == m_layout.end() ? nullptr : &it->second;
}

void Window::registered(Control &control)
{
    auto *option = dynamic_cast<OptionButton *>(&control);
    if (!option) {
        return;
    }
    const QString group = arrayBaseName(control.name());
    option->setExclusion([this, group](OptionButton &chosen) {
        for (const Entry &entry : m_controls) {
            auto *other = dynamic_cast<OptionButton *>(entry.control);
            if (other && other != &chosen && arrayBaseName(entry.name) == group) {
                other->setValue(false);
            }
        }
    });
}

int Window::subscribe(std::function<void()> observer)
{
    const int id = m_nextObserver++;
    m_observers.emplace(id, std::move(observer));
    return id;
}

void Window::unsubscribe(int id)
{
    m_observers.erase(id);
}

void Window::changed()
{
    for (const auto &entry : m_observers) {
        entry.second();
    }
}

QString arrayBaseName(const QString &name)
{
    const qsizetype paren = name.indexOf(QLatin1Char('('));
    return paren < 0 ? name : name.left(paren);
}

} // namespace ui
