#pragma once
// Makes the widget of any control model, by its kind; the widget owns the binding that keeps it in
// step with the model.

class QWidget;

namespace ui
{
class Control;
}

namespace uiqt
{

struct ViewContext;

// Null for menus, which the menu bar makes. A tab control gets pages only when the window places
// controls on them.
QWidget *makeControlWidget(ui::Control &control, ViewContext &context, bool tabsWithPages);

} // namespace uiqt
