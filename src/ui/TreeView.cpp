#include "ui/TreeView.h"

#include "core/platform/Failure.h"

namespace ui
{

namespace
{

constexpr int KeyNotUnique = 35602;
constexpr int ElementNotFound = 35601;

[[noreturn]] void notFound()
{
    throw platform::Failure(ElementNotFound, QStringLiteral("Element not found"));
}

} // namespace

const TreeNode &TreeView::node(const QString &key) const
{
    const auto it = m_byKey.constFind(key);
    if (it == m_byKey.constEnd()) {
        notFound();
    }
    return *it;
}

TreeNode &TreeView::nodeRef(const QString &key)
{
    const auto it = m_byKey.find(key);
    if (it == m_byKey.end()) {
        notFound();
    }
    return *it;
}

int TreeView::depth(const QString &key) const
{
    int d = 0;
    QString parent = node(key).parentKey;
    while (!parent.isEmpty()) {
        ++d;
        parent = node(parent).parentKey;
    }
    return d;
}

void TreeView::add(const QString &parentKey, const QString &key, const QString &text)
{
    if (contains(key)) {
        throw platform::Failure(KeyNotUnique, QStringLiteral("Key is not unique in collection"));
    }
    if (parentKey.isEmpty()) {
        m_roots.append(key);
    } else {
        nodeRef(parentKey).children.append(key);
    }
    m_byKey.insert(key, TreeNode{key, parentKey, text, false, false, {}});
    changed();
}

void TreeView::remove(const QString &key)
{
    const TreeNode gone = node(key);
    QStringList subtree;
    collect(key, subtree);
    for (const QString &k : subtree) {
        if (k == m_selected) {
            m_selected.clear();
        }
        m_byKey.remove(k);
    }
    if (gone.parentKey.isEmpty()) {
        m_roots.removeOne(key);
    } else {
        nodeRef(gone.parentKey).children.removeOne(key);
    }
    changed();
}

void TreeView::clear()
{
    m_byKey.clear();
    m_roots.clear();
    m_selected.clear();
    changed();
}

void TreeView::collect(const QString &key, QStringList &out) const
{
    // Deep documents would overflow the stack with recursion; walk with an explicit stack.
    QStringList stack{key};
    while (!stack.isEmpty()) {
        const QString k = stack.takeLast();
        out.append(k);
        const QStringList &children = node(k).children;
        for (auto it = children.crbegin(); it != children.crend(); ++it) {
            stack.append(*it);
        }
    }
}

QStringList TreeView::keysInOrder() const
{
    QStringList keys;
    keys.reserve(count());
    for (const QString &root : m_roots) {
        collect(root, keys);
    }
    return keys;
}

void TreeView::setText(const QString &key, const QString &text)
{
    nodeRef(key).text = text;
    changed();
}

void TreeView::setBold(const QString &key, bool bold)
{
    nodeRef(key).bold = bold;
    changed();
}

void TreeView::setExpanded(const QString &key, bool expanded)
{
    nodeRef(key).expanded = expanded;
    changed();
}

void TreeView::select(const QString &key)
{
    if (!key.isEmpty()) {
        node(key);
    }
    m_selected = key;
    changed();
}

void TreeView::userSelect(const QString &key)
{
    select(key);
    if (m_nodeClick) {
        m_nodeClick(key);
    }
}

void TreeView::startLabelEdit()
{
    m_editRequested = true;
    changed();
}

void TreeView::finishLabelEdit(const QString &text)
{
    m_editRequested = false;
    if (m_selected.isEmpty()) {
        return;
    }
    QString newText = text;
    bool cancel = false;
    if (m_afterLabelEdit) {
        m_afterLabelEdit(m_selected, newText, cancel);
    }
    if (!cancel && contains(m_selected)) {
        nodeRef(m_selected).text = newText;
    }
    changed();
}

void TreeView::cancelLabelEdit()
{
    m_editRequested = false;
    changed();
}

QStringList TreeView::dumpRows() const
{
    QStringList rows;
    for (const QString &key : keysInOrder()) {
        const TreeNode &n = node(key);
        rows.append(QString(depth(key) * 2, QLatin1Char(' ')) + n.text
                    + (n.bold ? QStringLiteral(" [bold]") : QString()));
    }
    return rows;
}

bool TreeView::isRowSelected(int row) const
{
    const QStringList keys = keysInOrder();
    return row >= 0 && row < keys.size() && keys.at(row) == m_selected;
}

} // namespace ui
