#pragma once
// The menus of a window: a menu bar built from its Menu controls (the parent names give the tree,
// a caption of "-" is a separator), each item bound to its model, and a menu shown at the pointer
// when the window asks for it as a popup.

#include <QList>
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;

namespace ui
{
class Menu;
class Window;
} // namespace ui

namespace uiqt
{

class ControlBinding;
struct ViewContext;

class MenuBar : public QObject
{
    Q_OBJECT

public:
    // Fills the bar, which owns what is made here.
    MenuBar(ui::Window &window, QMenuBar &bar, ViewContext &context);

    // Stops listening to the menus.
    void detach();

private:
    void addItem(ui::Menu &menu, QMenu *parent);
    void bind(ui::Menu &menu, QAction &action, QMenu *submenu);
    void popup(QMenu *submenu);
    // A window whose menus are all hidden (popups only) shows no bar.
    void showBarWhenUsed();

    ui::Window &m_window;
    QMenuBar &m_bar;
    ViewContext &m_context;
    QList<int> m_subscriptions;
    QList<ui::Menu *> m_menus;
};

} // namespace uiqt
