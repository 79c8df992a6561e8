#pragma once
// The tree editor's document and the content handler that fills it: each element becomes a node
// with the key "nod" plus a running number, in document order. Of text delivered in several
// pieces only the last stays on its node, and whitespace after an element's last child becomes
// that element's text.

#include "xml/SaxContentHandler.h"
#include "xml/clsNode.h"

#include <memory>

namespace xml
{

class clsXMLParse : public SaxContentHandler
{
public:
    clsXMLParse();

    // The anchor above the document element: once loaded, the document element is its child 1.
    // It is replaced only when a document has been read to its end.
    clsNode &RootNode() const { return *m_root; }

    void startDocument() override;
    void endDocument() override;
    void startElement(const QString &namespaceUri,
                      const QString &localName,
                      const QString &qName,
                      const SaxAttributes &attributes) override;
    void endElement(const QString &namespaceUri,
                    const QString &localName,
                    const QString &qName) override;
    void characters(const QString &text) override;

    // Reads a document's bytes into a fresh anchor; a parse failure leaves RootNode as it was.
    void load(const QByteArray &document);

private:
    std::unique_ptr<clsNode> m_root;
    std::unique_ptr<clsNode> m_reading; // the anchor being filled, until the document ends
    clsNode *m_current = nullptr;
    int m_counter = 1;
};

} // namespace xml
