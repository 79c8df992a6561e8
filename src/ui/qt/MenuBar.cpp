#include "ui/qt/MenuBar.h"

#include "ui/Menu.h"
#include "ui/Window.h"
#include "ui/qt/EventGuard.h"
#include "ui/qt/ViewContext.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

QList<ui::Menu *> childrenOf(const ui::Window &window, const QString &parent)
{
    QList<ui::Menu *> menus;
    for (const ui::Window::Entry &entry : window.controls()) {
        auto *menu = dynamic_cast<ui::Menu *>(entry.control);
        if (menu && menu->parentMenu().compare(parent, Qt::CaseInsensitive) == 0) {
            menus.append(menu);
        }
    }
    return menus;
}

bool isSeparator(const ui::Menu &menu)
{
    return menu.caption() == u"-"_s;
}

} // namespace

MenuBar::MenuBar(ui::Window &window, QMenuBar &bar, ViewContext &context)
    : QObject(&bar)
    , m_window(window)
    , m_bar(bar)
    , m_context(context)
{
    for (ui::Menu *menu : childrenOf(window, QString())) {
        addItem(*menu, nullptr);
    }
    showBarWhenUsed();
}

void MenuBar::addItem(ui::Menu &menu, QMenu *parent)
{
    const QList<ui::Menu *> children = childrenOf(m_window, menu.name());
    QMenu *submenu = nullptr;
    QAction *action = nullptr;
    if (!children.isEmpty() || !parent) {
        // A top-level menu is a menu even when empty, so that it can still pop up.
        submenu = parent ? parent->addMenu(menu.caption()) : m_bar.addMenu(menu.caption());
        submenu->setObjectName(menu.name());
        action = submenu->menuAction();
        for (ui::Menu *child : children) {
            addItem(*child, submenu);
        }
    } else {
        action = parent->addAction(menu.caption());
    }
    action->setObjectName(menu.name());
    action->setSeparator(isSeparator(menu));
    bind(menu, *action, submenu);
}

void MenuBar::bind(ui::Menu &menu, QAction &action, QMenu *submenu)
{
    const QPointer<QAction> target(&action);
    const QPointer<QMenu> sub(submenu);
    const QPointer<MenuBar> self(this);
    auto paint = [target, &menu] {
        if (!target) {
            return;
        }
        target->setText(menu.caption());
        target->setVisible(menu.visible());
        target->setEnabled(menu.enabled());
        target->setToolTip(menu.toolTip());
        target->setCheckable(menu.checked());
        target->setChecked(menu.checked());
    };
    paint();
    // Told at once, not on the next turn: a popup request lasts only while the model tells it.
    m_subscriptions.append(menu.subscribe([self, sub, paint, &menu] {
        paint();
        if (self) {
            self->showBarWhenUsed();
            if (menu.popupRequested()) {
                self->popup(sub);
            }
        }
    }));
    m_menus.append(&menu);
    ui::Host &host = m_context.host;
    if (submenu) {
        // A menu's Click comes as it opens, so that its handler can set up the items.
        QObject::connect(submenu, &QMenu::aboutToShow, this, [&host, &menu] {
            runGuarded(host, [&] { menu.fireClick(); });
        });
    } else {
        QObject::connect(&action, &QAction::triggered, this, [&host, &menu, paint] {
            runGuarded(host, [&] { menu.fireClick(); });
            paint();
        });
    }
}

void MenuBar::popup(QMenu *submenu)
{
    if (submenu) {
        // As the program expects, the request returns when the menu has closed and the chosen
        // item's handler has run.
        submenu->exec(QCursor::pos());
    }
}

void MenuBar::showBarWhenUsed()
{
    bool used = false;
    for (const ui::Menu *menu : childrenOf(m_window, QString())) {
        used = used || menu->visible();
    }
    m_bar.setVisible(used);
}

void MenuBar::detach()
{
    for (int i = 0; i < m_menus.size(); ++i) {
        m_menus.at(i)->unsubscribe(m_subscriptions.at(i));
    }
    m_menus.clear();
    m_subscriptions.clear();
}

} // namespace uiqt
