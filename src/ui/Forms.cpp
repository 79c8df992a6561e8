#include "ui/Forms.h"

#include <algorithm>
#include <stdexcept>

namespace ui
{

Forms::~Forms()
{
    m_order.clear();
    m_loaded.clear();
    m_unloaded.clear();
}

Window &Forms::load(std::type_index type)
{
    const auto it = m_loaded.find(type);
    if (it != m_loaded.end()) {
        return *it->second;
    }
    const auto maker = m_makers.find(type);
    if (maker == m_makers.end()) {
        throw std::logic_error(std::string("no maker for window type ") + type.name());
    }
    std::unique_ptr<Window> made = maker->second();
    Window &window = *made;
    m_loaded.emplace(type, std::move(made));
    m_order.push_back(&window);
    window.Form_Load();
    return window;
}

bool Forms::unload(Window &window)
{
    bool cancel = false;
    window.Form_QueryUnload(cancel);
    if (cancel) {
        return false;
    }
    window.Form_Unload(cancel);
    if (cancel) {
        return false;
    }
    m_host.close(window);
    for (auto it = m_loaded.begin(); it != m_loaded.end(); ++it) {
        if (it->second.get() == &window) {
            m_unloaded.push_back(std::move(it->second));
            m_loaded.erase(it);
            break;
        }
    }
    m_order.erase(std::remove(m_order.begin(), m_order.end(), &window), m_order.end());
    return true;
}

Window *Forms::find(const QString &name) const
{
    for (Window *window : m_order) {
        if (window->name().compare(name, Qt::CaseInsensitive) == 0) {
            return window;
        }
    }
    return nullptr;
}

std::vector<Window *> Forms::loaded() const
{
    return m_order;
}

void Forms::collect()
{
    m_unloaded.clear();
}

} // namespace ui
