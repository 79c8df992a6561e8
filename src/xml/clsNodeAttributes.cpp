#include "xml/clsNodeAttributes.h"

#include "xml/CollectionFailures.h"

namespace xml
{

clsNodeAttribute &
clsNodeAttributes::Add(const QString &name, const QString &value, const QString &key)
{
    if (!key.isEmpty() && indexOfKey(key) >= 0) {
        keyInUse();
    }
    m_items.push_back(clsNodeAttribute{name, value});
    m_keys.push_back(key);
    return m_items.back();
}

clsNodeAttribute &clsNodeAttributes::Item(int index)
{
    if (index < 1 || index > Count()) {
        outOfRange();
    }
    return m_items[std::size_t(index - 1)];
}

const clsNodeAttribute &clsNodeAttributes::Item(int index) const
{
    if (index < 1 || index > Count()) {
        outOfRange();
    }
    return m_items[std::size_t(index - 1)];
}

clsNodeAttribute &clsNodeAttributes::Item(const QString &key)
{
    const int at = indexOfKey(key);
    if (at < 0) {
        noSuchKey();
    }
    return m_items[std::size_t(at)];
}

void clsNodeAttributes::Remove(int index)
{
    if (index < 1 || index > Count()) {
        outOfRange();
    }
    m_items.erase(m_items.begin() + (index - 1));
    m_keys.erase(m_keys.begin() + (index - 1));
}

void clsNodeAttributes::Remove(const QString &key)
{
    const int at = indexOfKey(key);
    if (at < 0) {
        noSuchKey();
    }
    Remove(at + 1);
}

int clsNodeAttributes::indexOfKey(const QString &key) const
{
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        if (!m_keys[i].isEmpty() && m_keys[i].compare(key, Qt::CaseInsensitive) == 0) {
            return int(i);
        }
    }
    return -1;
}

} // namespace xml
