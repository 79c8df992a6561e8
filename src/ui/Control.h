#pragma once
// The base of every control model: the state a program reads and writes (caption, visible,
// enabled, bold...), its events, and the observers that a view repaints from. Holds no pixels.

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

namespace ui
{

class Control
{
public:
    Control() = default;
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    virtual ~Control() = default;

    // The kind of control, as the view and the macro runner know it ("ListBox", "Button", ...).
    virtual QString kind() const = 0;

    const QString &name() const { return m_name; }

    void setName(const QString &name) { m_name = name; }

    const QString &caption() const { return m_caption; }

    void setCaption(const QString &caption);

    bool visible() const { return m_visible; }

    void setVisible(bool visible);

    bool enabled() const { return m_enabled; }

    void setEnabled(bool enabled);

    const QString &toolTip() const { return m_toolTip; }

    void setToolTip(const QString &tip);

    bool bold() const { return m_bold; }

    void setBold(bool bold);

    // A colour as 0x00BBGGRR, as the program's colour values are written; -1 is the default.
    int foreColor() const { return m_foreColor; }

    void setForeColor(int color);

    Control &onClick(std::function<void()> handler);
    Control &onDblClick(std::function<void()> handler);
    Control &onChange(std::function<void()> handler);
    Control &onKeyPress(std::function<void(int &keyAscii)> handler);
    Control &onGotFocus(std::function<void()> handler);
    // The right mouse button pressed on the control, where a window opens its popup menu.
    Control &onRightClick(std::function<void()> handler);

    void fireClick();
    void fireDblClick();
    void fireChange();
    void fireKeyPress(int &keyAscii);
    void fireGotFocus();
    void fireRightClick();

    // What a transcript shows of this control: one text, or one row each for lists.
    virtual QStringList dumpRows() const { return {m_caption}; }

    virtual bool dumpsAsRows() const { return false; }

    virtual bool isRowSelected(int) const { return false; }

    // Written after the quoted text of a one-row dump, such as a check box's value; empty for most.
    virtual QString dumpValue() const { return {}; }

    // Observers, for a view: called after every change of state.
    int subscribe(std::function<void()> observer);
    void unsubscribe(int id);

protected:
    void changed();

private:
    QString m_name;
    QString m_caption;
    QString m_toolTip;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_bold = false;
    int m_foreColor = -1;
    std::function<void()> m_click;
    std::function<void()> m_dblClick;
    std::function<void()> m_change;
    std::function<void(int &)> m_keyPress;
    std::function<void()> m_gotFocus;
    std::function<void()> m_rightClick;
    std::map<int, std::function<void()>> m_observers;
    int m_nextObserver = 1;
};

} // namespace ui
