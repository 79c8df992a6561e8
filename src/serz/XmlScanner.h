#pragma once
// A streaming XML scanner over text held in memory, for the converter's documents and what an
// editor makes of them: elements, attributes, entities and character references, comments,
// CDATA, processing instructions. No DTDs. Control bytes and stray bytes inside text pass
// through, since game strings hold them and the converter prints them raw.

#include "serz/XmlEvents.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace serz
{

class XmlScanner
{
public:
    explicit XmlScanner(std::string_view xml);

    // False on the first fault; message() and errorOffset() tell what and where.
    bool run(XmlEvents &events);

    [[nodiscard]] const std::string &message() const { return m_message; }

    [[nodiscard]] std::size_t errorOffset() const { return m_errorAt; }

    // Where the event being reported starts.
    [[nodiscard]] std::size_t eventOffset() const { return m_eventAt; }

    // 1-based line and column (in bytes) of an offset.
    static void lineAndColumn(std::string_view xml, std::size_t offset, int &line, int &column);

private:
    bool scanMarkup(XmlEvents &events);
    bool scanStartTag(XmlEvents &events);
    bool scanEndTag(XmlEvents &events);
    bool scanInstruction(XmlEvents &events);
    bool scanComment();
    bool scanCData(XmlEvents &events);
    bool scanText(XmlEvents &events);
    bool scanAttributes(bool &selfClosing);
    bool scanName(std::string_view &name);
    bool decode(std::string_view raw, std::string &out, bool attribute);
    bool appendReference(std::string_view ref, std::string &out, std::size_t at);
    void skipBlanks();
    bool fail(std::string message, std::size_t at);

    std::string_view m_xml;
    std::size_t m_pos = 0;
    std::size_t m_eventAt = 0;
    std::vector<std::string_view> m_open;
    std::vector<XmlAttribute> m_attributes;
    std::vector<std::string> m_attributeText; // decoded values that differ from the raw text
    std::string m_text;
    bool m_rootSeen = false;
    std::string m_message;
    std::size_t m_errorAt = 0;
};

} // namespace serz
