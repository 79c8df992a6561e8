#pragma once
// The widget of a tree view: nodes by key with their bold and expanded marks and the selection,
// in-place label editing when the model asks for it, and the node under a right click selected
// before the model hears of the click.

class QWidget;

namespace ui
{
class TreeView;
}

namespace uiqt
{

struct ViewContext;

QWidget *makeTreeView(ui::TreeView &tree, ViewContext &context);

} // namespace uiqt
