#pragma once
// The base of every window: its name, caption and measures, its controls registered by name (so
// the Qt view can build it and the macro runner can address it), layout hints, and the form
// events that handlers override.

#include "ui/Control.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace ui
{

class Menu;

// Where the Qt view puts a control: inside a container control (a frame, or a tab of a tab
// control), at a position in twips when given; otherwise the view stacks controls in order.
struct LayoutHint {
    QString container;
    int tab = -1;
    int left = -1;
    int top = -1;
    int width = -1;
    int height = -1;
};

class Window
{
public:
    struct Entry {
        QString name;
        Control *control;
    };

    explicit Window(QString name);
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;
    virtual ~Window() = default;

    const QString &name() const { return m_name; }

    const QString &caption() const { return m_caption; }

    void setCaption(const QString &caption);

    // Measures in twips, as the program stores them.
    int width() const { return m_width; }

    int height() const { return m_height; }

    int top() const { return m_top; }

    int left() const { return m_left; }

    void setGeometry(int left, int top, int width, int height);

    // Registers a control under its name; a control array member is named "Option2(1)". Option
    // buttons of one array exclude each other.
    template <typename C> C &add(const QString &name, C &control)
    {
        control.setName(name);
        m_controls.push_back(Entry{name, &control});
        registered(control);
        return control;
    }

    // Registers a menu item under the menu it stands in (empty: the menu bar).
    Menu &addMenu(const QString &name, Menu &menu, const QString &parent, const QString &caption);

    Control *control(const QString &name) const;

    const std::vector<Entry> &controls() const { return m_controls; }

    void place(const QString &control, const LayoutHint &hint) { m_layout[control] = hint; }

    const LayoutHint *layout(const QString &control) const;

    // Form events, run by Forms and the hosts.
    virtual void Form_Load() { }

    virtual void Form_Activate() { }

    virtual void Form_QueryUnload(bool &cancel) { (void)cancel; }

    virtual void Form_Unload(bool &cancel) { (void)cancel; }

    int subscribe(std::function<void()> observer);
    void unsubscribe(int id);

private:
    void registered(Control &control);
    void changed();

    QString m_name;
    QString m_caption;
    int m_width = 7200;
    int m_height = 5400;
    int m_top = 0;
    int m_left = 0;
    std::vector<Entry> m_controls;
    std::map<QString, LayoutHint> m_layout;
    std::map<int, std::function<void()>> m_observers;
    int m_nextObserver = 1;
};

// The base name of a control array member: "Option2" for "Option2(1)".
QString arrayBaseName(const QString &name);

} // namespace ui
