#pragma once
// What the XML scanner reports, in document order, to the reader that builds tokens from it.

#include <span>
#include <string_view>

namespace serz
{

struct XmlAttribute {
    std::string_view name;
    std::string_view value; // entities already replaced
};

class XmlEvents
{
public:
    virtual ~XmlEvents() = default;
    virtual void startElement(std::string_view name, std::span<const XmlAttribute> attributes) = 0;
    virtual void endElement() = 0;
    // Text between tags, entities replaced and line ends made LF; may come in several pieces.
    virtual void characters(std::string_view text) = 0;
    virtual void instruction(std::string_view target, std::string_view data) = 0;
    // A handler that found a fault of its own stops the scan.
    [[nodiscard]] virtual bool stopped() const = 0;
};

} // namespace serz
