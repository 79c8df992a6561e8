#include "ui/qt/TreeWidget.h"

#include "ui/TreeView.h"
#include "ui/qt/ControlBinding.h"

#include <QAbstractItemDelegate>
#include <QHash>
#include <QLineEdit>
#include <QTreeWidget>

#include <memory>

namespace uiqt
{

namespace
{

constexpr int KeyRole = Qt::UserRole;

// What the widget holds of the model: an item per key, and the shape it was built from.
struct TreeState {
    QHash<QString, QTreeWidgetItem *> items;
    QStringList shape; // key and parent key of each node, in display order
    bool editing = false;
    QString committed;
    bool hasCommitted = false;
};

QStringList shapeOf(const ui::TreeView &tree)
{
    QStringList shape;
    for (const QString &key : tree.keysInOrder()) {
        shape.append(key);
        shape.append(tree.node(key).parentKey);
    }
    return shape;
}

void rebuild(QTreeWidget &widget, const ui::TreeView &tree, TreeState &state)
{
    widget.clear();
    state.items.clear();
    // Parents come before their children in display order.
    for (const QString &key : tree.keysInOrder()) {
        const ui::TreeNode &node = tree.node(key);
        QTreeWidgetItem *parent =
            node.parentKey.isEmpty() ? nullptr : state.items.value(node.parentKey);
        auto *item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(&widget);
        item->setData(0, KeyRole, key);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        state.items.insert(key, item);
    }
    state.shape = shapeOf(tree);
}

void paintTree(QTreeWidget &widget, const ui::TreeView &tree, TreeState &state)
{
    if (state.editing) {
        // Repainting now would close the editor under the user's hands.
        return;
    }
    if (shapeOf(tree) != state.shape) {
        rebuild(widget, tree, state);
    }
    for (auto it = state.items.cbegin(); it != state.items.cend(); ++it) {
        const ui::TreeNode &node = tree.node(it.key());
        QTreeWidgetItem *item = it.value();
        if (item->text(0) != node.text) {
            item->setText(0, node.text);
        }
        if (item->font(0).bold() != node.bold) {
            QFont font = item->font(0);
            font.setBold(node.bold);
            item->setFont(0, font);
        }
        if (item->isExpanded() != node.expanded) {
            item->setExpanded(node.expanded);
        }
    }
    QTreeWidgetItem *selected = state.items.value(tree.selectedKey());
    if (widget.currentItem() != selected) {
        widget.setCurrentItem(selected);
    }
    if (selected) {
        widget.scrollToItem(selected);
    } else {
        widget.clearSelection();
    }
    if (tree.labelEditRequested() && selected) {
        state.editing = true;
        state.hasCommitted = false;
        widget.editItem(selected, 0);
    }
}

QString keyOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, KeyRole).toString() : QString();
}

void connectEditor(QTreeWidget *widget,
                   ControlBinding *binding,
                   ui::TreeView &tree,
                   const std::shared_ptr<TreeState> &state)
{
    QAbstractItemDelegate *delegate = widget->itemDelegate();
    QObject::connect(
        delegate, &QAbstractItemDelegate::commitData, binding, [state](QWidget *editor) {
            if (auto *line = qobject_cast<QLineEdit *>(editor)) {
                state->committed = line->text();
                state->hasCommitted = true;
            }
        });
    QObject::connect(
        delegate, &QAbstractItemDelegate::closeEditor, binding, [binding, &tree, state] {
            if (!state->editing) {
                return;
            }
            state->editing = false;
            const bool committed = state->hasCommitted;
            const QString text = state->committed;
            binding->userEdit([&] {
                if (committed) {
                    tree.finishLabelEdit(text);
                } else {
                    tree.cancelLabelEdit();
                }
            });
        });
}

} // namespace

QWidget *makeTreeView(ui::TreeView &tree, ViewContext &context)
{
    auto *widget = new QTreeWidget;
    widget->setHeaderHidden(true);
    widget->setColumnCount(1);
    // Only the program starts label editing.
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *binding = new ControlBinding(tree, *widget, context);
    binding->watch(*widget->viewport());
    auto state = std::make_shared<TreeState>();
    binding->setPaint([widget, &tree, state] { paintTree(*widget, tree, *state); });
    QObject::connect(
        widget, &QTreeWidget::currentItemChanged, binding, [binding, &tree](QTreeWidgetItem *item) {
            const QString key = keyOf(item);
            if (binding->focusArriving()) {
                binding->repaintLater();
            } else if (!key.isEmpty() && key != tree.selectedKey()) {
                binding->userEdit([&] { tree.userSelect(key); });
            }
        });
    QObject::connect(
        widget, &QTreeWidget::itemExpanded, binding, [binding, &tree](QTreeWidgetItem *item) {
            binding->userEdit([&] { tree.setExpanded(keyOf(item), true); });
        });
    QObject::connect(
        widget, &QTreeWidget::itemCollapsed, binding, [binding, &tree](QTreeWidgetItem *item) {
            binding->userEdit([&] { tree.setExpanded(keyOf(item), false); });
        });
    binding->setRightClickTarget([binding, widget, &tree](QPoint pos) {
        const QString key = keyOf(widget->itemAt(pos));
        if (!key.isEmpty() && key != tree.selectedKey()) {
            tree.userSelect(key);
            // The popup that follows should stand beside the node it acts on, shown selected.
            binding->repaintNow();
        }
    });
    connectEditor(widget, binding, tree, state);
    binding->repaintNow();
    return widget;
}

} // namespace uiqt
