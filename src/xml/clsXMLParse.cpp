#include "xml/clsXMLParse.h"

#include "xml/SaxReader.h"

namespace xml
{

clsXMLParse::clsXMLParse()
    : m_root(std::make_unique<clsNode>())
{
}

void clsXMLParse::load(const QByteArray &document)
{
    SaxReader reader(*this);
    try {
        reader.parse(document);
    } catch (...) {
        m_reading.reset();
        m_current = nullptr;
        throw;
    }
}

void clsXMLParse::startDocument()
{
    m_reading = std::make_unique<clsNode>();
    m_current = m_reading.get();
    m_counter = 1;
}

void clsXMLParse::endDocument()
{
    if (m_reading) {
        m_root = std::move(m_reading);
    }
    m_current = m_root.get();
}

void clsXMLParse::startElement(const QString &,
                               const QString &localName,
                               const QString &,
                               const SaxAttributes &attributes)
{
    clsNodeAttributes nodeAttributes;
    for (int i = 0; i < attributes.getLength(); ++i) {
        nodeAttributes.Add(attributes.getQName(i), attributes.getValue(i));
    }
    const QString key = QStringLiteral("nod") + QString::number(m_counter);
    m_current = &m_current->ChildNodes.Add(
        localName, QString(), std::move(nodeAttributes), clsNodes(), m_current, key, key);
    ++m_counter;
}

void clsXMLParse::endElement(const QString &, const QString &, const QString &)
{
    m_current = m_current->ParentNode;
}

void clsXMLParse::characters(const QString &text)
{
    m_current->NodeCharacters = text;
}

} // namespace xml
