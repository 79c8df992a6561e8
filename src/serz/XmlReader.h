#pragma once
// Reads the converter's XML, and what a person may make of it in an editor, into a Document.
// Child counts are computed from the elements, as the game expects them.

#include "serz/Document.h"
#include "serz/Options.h"
#include "serz/Result.h"
#include "serz/XmlEvents.h"
#include "serz/XmlScanner.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace serz
{

class XmlReader : private XmlEvents
{
public:
    [[nodiscard]] static Result<Document> read(std::string_view xml, const BinOptions &options);

private:
    struct Frame {
        Kind kind = Kind::Open;
        ValueType type = ValueType::None;
        std::uint32_t name = 0;
        std::uint32_t typeName = 0;
        std::size_t openToken = 0; // Open: its token, to set the child count at the end
        std::uint32_t children = 0;
        std::uint32_t declaredSize = 0; // Blob: d:size; Array: d:numElements
        std::size_t at = 0; // where its start tag begins
        std::string altEncoding;
        bool hasAlt = false;
    };

    static constexpr std::size_t here = static_cast<std::size_t>(-1);

    XmlReader(std::string_view xml, const BinOptions &options);

    bool parse();
    void startElement(std::string_view name, std::span<const XmlAttribute> atts) override;
    void endElement() override;
    void characters(std::string_view chunk) override;
    void instruction(std::string_view target, std::string_view data) override;

    [[nodiscard]] bool stopped() const override { return m_failed; }

    void start(std::string_view name, std::span<const XmlAttribute> atts);
    void end();
    void text(std::string_view chunk);
    bool startValue(Frame &frame, std::string_view type, std::span<const XmlAttribute> atts);
    void countChild(bool counted);
    bool finishValue(const Frame &frame);
    bool finishArray(const Frame &frame);
    bool finishBlob(const Frame &frame);
    std::uint32_t intern(std::string_view text);
    std::uint32_t storedName(std::string_view xmlName);
    void fail(std::string message, std::size_t at = here);

    std::string_view m_xml;
    const BinOptions &m_options;
    XmlScanner m_scanner;
    Document m_doc;

    // Looked up by string_view, so a string already seen costs no allocation.
    struct TextHash {
        using is_transparent = void;

        std::size_t operator()(std::string_view text) const
        {
            return std::hash<std::string_view>{}(text);
        }
    };

    using TextIndex = std::unordered_map<std::string, std::uint32_t, TextHash, std::equal_to<>>;

    TextIndex m_index; // string text -> document index
    TextIndex m_nameIndex; // element name as printed -> index of its stored name
    std::vector<Frame> m_stack;
    std::string m_text;
    std::vector<std::uint64_t> m_exact; // serz-exact bits for the next array
    std::string m_pendingName; // serz-name for the next element
    bool m_hasPendingName = false;
    bool m_anonymous = false;
    bool m_afterRecord = false; // the next element was introduced by a record
    bool m_failed = false;
    bool m_rootClosed = false;
    Error m_error;
};

} // namespace serz
