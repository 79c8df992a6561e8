#pragma once
// Reads an XML document and reports it to a content handler as a stream of events. The reader
// keeps the rules a SAX reader of the program's platform keeps: the declared encoding is obeyed,
// line ends come as LF, namespace declarations are not reported as attributes, and a document
// that is not well formed raises a failure after the events read so far.

#include "xml/SaxContentHandler.h"

#include <QByteArray>

namespace xml
{

// The failure number a parse error raises, as the platform's reader reports it.
constexpr int ParseFailure = -2147467259;

class SaxReader
{
public:
    explicit SaxReader(SaxContentHandler &handler)
        : m_handler(handler)
    {
    }

    // The whole document in its file's bytes.
    void parse(const QByteArray &document);

private:
    SaxContentHandler &m_handler;
};

} // namespace xml
