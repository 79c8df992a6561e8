#pragma once
// The children of one element, in file order, reached by position (from 1) or by key. The
// collection owns its nodes: removing a node drops it and everything below it.

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace xml
{

class clsNode;
class clsNodeAttributes;

class clsNodes
{
public:
    clsNodes();
    clsNodes(clsNodes &&other) noexcept;
    clsNodes &operator=(clsNodes &&other) noexcept;
    clsNodes(const clsNodes &) = delete;
    clsNodes &operator=(const clsNodes &) = delete;
    ~clsNodes();

    // Appends a new node; the collection key, when given, is how Item and Remove find it (the
    // document gives each node its own key). A key in use raises failure 457.
    clsNode &Add(const QString &name,
                 const QString &characters,
                 clsNodeAttributes attributes,
                 clsNodes children,
                 clsNode *parent,
                 const QString &nodeKey,
                 const QString &key = {});
    // Appends a node made elsewhere (a pasted copy), under its own key.
    clsNode &Append(std::unique_ptr<clsNode> node, const QString &key);

    // Failure 9 for an index outside 1..Count, 5 for an unknown key.
    clsNode &Item(int index) const;
    clsNode &Item(const QString &key) const;
    clsNode *find(const QString &key) const;

    int Count() const { return int(m_items.size()); }

    void Remove(int index);
    void Remove(const QString &key);

    // Walks the nodes in order, as For Each does.
    class iterator
    {
    public:
        explicit iterator(std::vector<std::unique_ptr<clsNode>>::const_iterator at)
            : m_at(at)
        {
        }

        clsNode &operator*() const { return **m_at; }

        clsNode *operator->() const { return m_at->get(); }

        iterator &operator++()
        {
            ++m_at;
            return *this;
        }

        bool operator==(const iterator &other) const { return m_at == other.m_at; }

        bool operator!=(const iterator &other) const { return m_at != other.m_at; }

    private:
        std::vector<std::unique_ptr<clsNode>>::const_iterator m_at;
    };

    iterator begin() const { return iterator(m_items.begin()); }

    iterator end() const { return iterator(m_items.end()); }

    // Hands every node over, emptying the collection; used to drop deep trees without recursion.
    std::vector<std::unique_ptr<clsNode>> releaseAll();

private:
    std::vector<std::unique_ptr<clsNode>> m_items;
    QHash<QString, clsNode *> m_byKey; // collection keys, folded to lower case
};

} // namespace xml
