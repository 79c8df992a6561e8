#include "xml/clsNodes.h"

#include "xml/CollectionFailures.h"
#include "xml/clsNode.h"

#include <algorithm>
#include <utility>

namespace xml
{

clsNodes::clsNodes() = default;

clsNodes::clsNodes(clsNodes &&other) noexcept = default;

clsNodes &clsNodes::operator=(clsNodes &&other) noexcept = default;

clsNodes::~clsNodes()
{
    // A document may nest deeper than the stack allows recursion: take each subtree apart level
    // by level, so that no node is destroyed while it still has children.
    std::vector<std::unique_ptr<clsNode>> pending = releaseAll();
    while (!pending.empty()) {
        std::unique_ptr<clsNode> node = std::move(pending.back());
        pending.pop_back();
        for (std::unique_ptr<clsNode> &child : node->ChildNodes.releaseAll()) {
            pending.push_back(std::move(child));
        }
    }
}

std::vector<std::unique_ptr<clsNode>> clsNodes::releaseAll()
{
    m_byKey.clear();
    return std::exchange(m_items, {});
}

clsNode &clsNodes::Add(const QString &name,
                       const QString &characters,
                       clsNodeAttributes attributes,
                       clsNodes children,
                       clsNode *parent,
                       const QString &nodeKey,
                       const QString &key)
{
    auto node = std::make_unique<clsNode>();
    node->NodeName = name;
    node->NodeCharacters = characters;
    node->NodeAttributes = std::move(attributes);
    node->ChildNodes = std::move(children);
    node->ParentNode = parent;
    node->NodeKey = nodeKey;
    return Append(std::move(node), key);
}

clsNode &clsNodes::Append(std::unique_ptr<clsNode> node, const QString &key)
{
    if (!key.isEmpty()) {
        const QString folded = key.toLower();
        if (m_byKey.contains(folded)) {
            keyInUse();
        }
        m_byKey.insert(folded, node.get());
    }
    m_items.push_back(std::move(node));
    return *m_items.back();
}

clsNode &clsNodes::Item(int index) const
{
    if (index < 1 || index > Count()) {
        outOfRange();
    }
    return *m_items[std::size_t(index - 1)];
}

clsNode &clsNodes::Item(const QString &key) const
{
    clsNode *node = find(key);
    if (!node) {
        noSuchKey();
    }
    return *node;
}

clsNode *clsNodes::find(const QString &key) const
{
    return m_byKey.value(key.toLower(), nullptr);
}

void clsNodes::Remove(int index)
{
    if (index < 1 || index > Count()) {
        outOfRange();
    }
    const auto at = m_items.begin() + (index - 1);
    for (auto it = m_byKey.begin(); it != m_byKey.end(); ++it) {
        if (it.value() == at->get()) {
            m_byKey.erase(it);
            break;
        }
    }
    // Detach first: the node's own subtree is dropped by its collection's destructor.
    std::unique_ptr<clsNode> gone = std::move(*at);
    m_items.erase(at);
}

void clsNodes::Remove(const QString &key)
{
    clsNode *node = find(key);
    if (!node) {
        noSuchKey();
    }
    m_byKey.remove(key.toLower());
    const auto at = std::find_if(
        m_items.begin(), m_items.end(), [node](const auto &item) { return item.get() == node; });
    std::unique_ptr<clsNode> gone = std::move(*at);
    m_items.erase(at);
}

} // namespace xml
