#pragma once
// What a SAX reader tells its content handler, in document order. Element names come as the
// namespace, the local name (prefix dropped) and the qualified name; attributes by index from 0
// with their qualified names; text in pieces (a reference such as "&amp;" is a piece of its own).

#include <QString>

#include <vector>

namespace xml
{

class SaxAttributes
{
public:
    struct Attribute {
        QString qName;
        QString value;
    };

    int getLength() const { return int(m_attributes.size()); }

    const QString &getQName(int index) const { return m_attributes.at(std::size_t(index)).qName; }

    const QString &getValue(int index) const { return m_attributes.at(std::size_t(index)).value; }

    void clear() { m_attributes.clear(); }

    void append(QString qName, QString value)
    {
        m_attributes.push_back(Attribute{std::move(qName), std::move(value)});
    }

private:
    std::vector<Attribute> m_attributes;
};

class SaxContentHandler
{
public:
    virtual ~SaxContentHandler() = default;

    virtual void startDocument() = 0;
    virtual void endDocument() = 0;
    virtual void startElement(const QString &namespaceUri,
                              const QString &localName,
                              const QString &qName,
                              const SaxAttributes &attributes) = 0;
    virtual void
    endElement(const QString &namespaceUri, const QString &localName, const QString &qName) = 0;
    virtual void characters(const QString &text) = 0;
};

} // namespace xml
