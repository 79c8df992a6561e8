#pragma once
// The attributes of one element, in file order, reached by position (from 1) or by an optional
// key, as the program's collections are.

#include "xml/clsNodeAttribute.h"

#include <QString>

#include <vector>

namespace xml
{

class clsNodeAttributes
{
public:
    // With a non-empty key the attribute can be reached by it; a key in use raises failure 457.
    clsNodeAttribute &Add(const QString &name, const QString &value, const QString &key = {});
    // Failure 9 for an index outside 1..Count, 5 for an unknown key.
    clsNodeAttribute &Item(int index);
    const clsNodeAttribute &Item(int index) const;
    clsNodeAttribute &Item(const QString &key);

    int Count() const { return int(m_items.size()); }

    void Remove(int index);
    void Remove(const QString &key);

    auto begin() const { return m_items.begin(); }

    auto end() const { return m_items.end(); }

private:
    int indexOfKey(const QString &key) const;

    std::vector<clsNodeAttribute> m_items;
    std::vector<QString> m_keys; // beside m_items; empty for an attribute added without a key
};

} // namespace xml
