#include "xml/NodeWalks.h"

#include "ui/TreeView.h"
#include "xml/clsNode.h"

#include <vector>

namespace xml
{

namespace
{

QString keyFor(int counter)
{
    return QStringLiteral("nod") + QString::number(counter);
}

// Pushes the children last to first, so that they come off the list in document order.
template <typename Item, typename Make>
void pushChildren(std::vector<Item> &stack, const clsNode &node, Make make)
{
    std::vector<clsNode *> children;
    children.reserve(std::size_t(node.ChildNodes.Count()));
    for (clsNode &child : node.ChildNodes) {
        children.push_back(&child);
    }
    for (auto it = children.rbegin(); it != children.rend(); ++it) {
        stack.push_back(make(**it));
    }
}

} // namespace

clsNode *FindNodeByKey(const clsNode &anchor, const QString &key)
{
    if (anchor.ChildNodes.Count() > 0 && anchor.ChildNodes.Item(1).NodeKey == key) {
        return &anchor.ChildNodes.Item(1);
    }
    std::vector<clsNode *> stack;
    pushChildren(stack, anchor, [](clsNode &child) { return &child; });
    while (!stack.empty()) {
        clsNode *node = stack.back();
        stack.pop_back();
        if (node->NodeKey == key) {
            return node;
        }
        pushChildren(stack, *node, [](clsNode &child) { return &child; });
    }
    return nullptr;
}

std::unique_ptr<clsNode> copyNode(const clsNode &source, int &counter)
{
    auto shallow = [&counter](const clsNode &from) {
        auto to = std::make_unique<clsNode>();
        to->NodeName = from.NodeName;
        to->NodeCharacters = from.NodeCharacters;
        for (const clsNodeAttribute &attribute : from.NodeAttributes) {
            to->NodeAttributes.Add(attribute.AttribName, attribute.AttribValue);
        }
        to->NodeKey = keyFor(++counter);
        return to;
    };

    struct Pending {
        const clsNode *from;
        clsNode *parent;
    };

    std::unique_ptr<clsNode> top = shallow(source);
    std::vector<Pending> stack;
    clsNode *topCopy = top.get();
    pushChildren(stack, source, [topCopy](const clsNode &child) {
        return Pending{&child, topCopy};
    });
    while (!stack.empty()) {
        const Pending next = stack.back();
        stack.pop_back();
        std::unique_ptr<clsNode> made = shallow(*next.from);
        made->ParentNode = next.parent;
        const QString key = made->NodeKey;
        clsNode &placed = next.parent->ChildNodes.Append(std::move(made), key);
        pushChildren(stack, *next.from, [&placed](const clsNode &child) {
            return Pending{&child, &placed};
        });
    }
    return top;
}

void addScreenNodes(ui::TreeView &tree, const QString &parentKey, const clsNode &top)
{
    struct Pending {
        const clsNode *node;
        QString parentKey;
    };

    std::vector<Pending> stack{Pending{&top, parentKey}};
    while (!stack.empty()) {
        const Pending next = stack.back();
        stack.pop_back();
        tree.add(next.parentKey, next.node->NodeKey, next.node->NodeName);
        pushChildren(stack, *next.node, [&next](const clsNode &child) {
            return Pending{&child, next.node->NodeKey};
        });
    }
}

void fillScreenTree(ui::TreeView &tree, const clsNode &first, int &counter)
{
    struct Pending {
        const clsNode *node;
        QString parentKey;
    };

    counter = 1;
    tree.add(QString(), keyFor(counter), first.NodeName);
    std::vector<Pending> stack;
    const QString firstKey = keyFor(counter);
    pushChildren(stack, first, [&firstKey](const clsNode &child) {
        return Pending{&child, firstKey};
    });
    while (!stack.empty()) {
        const Pending next = stack.back();
        stack.pop_back();
        const QString key = keyFor(++counter);
        tree.add(next.parentKey, key, next.node->NodeName);
        pushChildren(stack, *next.node, [&key](const clsNode &child) {
            return Pending{&child, key};
        });
    }
}

} // namespace xml
