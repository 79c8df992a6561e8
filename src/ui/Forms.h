#pragma once
// The program's windows: made on first use (running Form_Load, as a window loads when first
// named), shown and hidden through the host, unloaded on request and destroyed later, at a point
// where no handler of theirs is still running.

#include "ui/Host.h"
#include "ui/Window.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace ui
{

class Forms
{
public:
    explicit Forms(Host &host)
        : m_host(host)
    {
    }

    Forms(const Forms &) = delete;
    Forms &operator=(const Forms &) = delete;
    ~Forms();

    Host &host() const { return m_host; }

    // Tells how to make a window of type W.
    template <typename W> void define(std::function<std::unique_ptr<W>()> make)
    {
        m_makers[std::type_index(typeid(W))] = [make =
                                                    std::move(make)]() -> std::unique_ptr<Window> {
            return make();
        };
    }

    // The loaded window of type W, loading it first when needed.
    template <typename W> W &get() { return static_cast<W &>(load(std::type_index(typeid(W)))); }

    template <typename W> bool isLoaded() const
    {
        return m_loaded.count(std::type_index(typeid(W))) != 0;
    }

    // Loads when needed and shows; a modal show returns when the window is hidden or unloaded.
    template <typename W> W &show(bool modal = false)
    {
        W &window = get<W>();
        m_host.show(window, modal);
        return window;
    }

    void hide(Window &window) { m_host.close(window); }

    // Runs QueryUnload and Unload; gives false when a handler cancelled.
    bool unload(Window &window);
    // A loaded window by name, or null.
    Window *find(const QString &name) const;
    std::vector<Window *> loaded() const;
    // Destroys the windows unloaded since the last call.
    void collect();

private:
    Window &load(std::type_index type);

    Host &m_host;
    std::unordered_map<std::type_index, std::function<std::unique_ptr<Window>()>> m_makers;
    std::unordered_map<std::type_index, std::unique_ptr<Window>> m_loaded;
    std::vector<std::unique_ptr<Window>> m_unloaded;
    std::vector<Window *> m_order;
};

} // namespace ui
