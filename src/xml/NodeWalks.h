#pragma once
// Walks over the document's nodes that the tree editor needs: finding a node by key, copying a
// subtree under new keys, and the screen tree built from a subtree. All walk with a list of their
// own instead of recursion, since a document may nest very deep.

#include <QString>

#include <memory>

namespace ui
{
class TreeView;
}

namespace xml
{

class clsNode;

// The node with the key, searched depth first below the anchor (its first child is tried
// first); null when no node has it.
clsNode *FindNodeByKey(const clsNode &anchor, const QString &key);

// A deep copy: names, attributes in order, text and children. Each copied node takes the key
// "nod" plus the counter, raised first, in document order. The copy has no parent.
std::unique_ptr<clsNode> copyNode(const clsNode &source, int &counter);

// Screen nodes for a subtree under the parent's screen key, each keyed by its node's key.
void addScreenNodes(ui::TreeView &tree, const QString &parentKey, const clsNode &top);

// The screen tree of a loaded document: the first element as "nod1", then every element in
// document order keyed "nod" plus the counter, raised first; the counter ends at the count.
void fillScreenTree(ui::TreeView &tree, const clsNode &first, int &counter);

} // namespace xml
