#pragma once
// A menu or menu item: caption, checked mark, and the name of the menu it stands under (empty for
// a top-level menu). A caption of "-" is a separator.

#include "ui/Control.h"

namespace ui
{

class Menu : public Control
{
public:
    QString kind() const override { return QStringLiteral("Menu"); }

    const QString &parentMenu() const { return m_parent; }

    void setParentMenu(const QString &parent) { m_parent = parent; }

    bool checked() const { return m_checked; }

    void setChecked(bool checked)
    {
        if (m_checked != checked) {
            m_checked = checked;
            changed();
        }
    }

    // A popup menu that the window asks the view to show at the pointer.
    bool popupRequested() const { return m_popup; }

    void requestPopup()
    {
        m_popup = true;
        changed();
        m_popup = false;
    }

private:
    QString m_parent;
    bool m_checked = false;
    bool m_popup = false;
};

} // namespace ui
