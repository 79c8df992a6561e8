#pragma once
// A tree of nodes, each with a unique key, a label, a parent, bold and expanded marks; one node is
// selected. Label editing is asked of the view and ends in AfterLabelEdit, which may cancel it.

#include "ui/Control.h"

#include <QHash>

#include <functional>

namespace ui
{

struct TreeNode {
    QString key;
    QString parentKey; // empty for a root node
    QString text;
    bool bold = false;
    bool expanded = false;
    QStringList children;
};

class TreeView : public Control
{
public:
    QString kind() const override { return QStringLiteral("TreeView"); }

    // Adds a node as the last child of the parent (empty: a root). A key in use raises failure
    // 35602
    // ("Key is not unique in collection"), as the original control does.
    void add(const QString &parentKey, const QString &key, const QString &text);
    // Removes the node and everything below it.
    void remove(const QString &key);
    void clear();

    int count() const { return int(m_byKey.size()); }

    bool contains(const QString &key) const { return m_byKey.contains(key); }

    const TreeNode &node(const QString &key) const;

    const QStringList &rootKeys() const { return m_roots; }

    // Keys in display order: each node followed by its children, depth first.
    QStringList keysInOrder() const;

    const QStringList &childKeys(const QString &key) const { return node(key).children; }

    int depth(const QString &key) const;

    void setText(const QString &key, const QString &text);
    void setBold(const QString &key, bool bold);
    void setExpanded(const QString &key, bool expanded);

    const QString &selectedKey() const { return m_selected; }

    // Selects without firing NodeClick; empty clears the selection.
    void select(const QString &key);
    // A user's click on a node: selects it and fires NodeClick.
    void userSelect(const QString &key);

    void onNodeClick(std::function<void(const QString &key)> handler)
    {
        m_nodeClick = std::move(handler);
    }

    void
    onAfterLabelEdit(std::function<void(const QString &key, QString &text, bool &cancel)> handler)
    {
        m_afterLabelEdit = std::move(handler);
    }

    // The program asks for label editing of the selected node; the view opens an editor.
    void startLabelEdit();

    bool labelEditRequested() const { return m_editRequested; }

    // The user finished editing: the handler may cancel, otherwise the label takes the text.
    void finishLabelEdit(const QString &text);
    // The user left the editor without a change (Escape): AfterLabelEdit does not run.
    void cancelLabelEdit();

    QStringList dumpRows() const override;

    bool dumpsAsRows() const override { return true; }

    bool isRowSelected(int row) const override;

private:
    TreeNode &nodeRef(const QString &key);
    void collect(const QString &key, QStringList &out) const;

    QHash<QString, TreeNode> m_byKey;
    QStringList m_roots;
    QString m_selected;
    bool m_editRequested = false;
    std::function<void(const QString &)> m_nodeClick;
    std::function<void(const QString &, QString &, bool &)> m_afterLabelEdit;
};

} // namespace ui
