#include "serz/XmlReader.h"

#include "serz/NameMapping.h"
#include "serz/NumberText.h"
#include "serz/Utf8.h"
#include "serz/ValueText.h"
#include "serz/XmlScanner.h"

#include <algorithm>
#include <charconv>

namespace serz
{
namespace
{

using Attributes = std::span<const XmlAttribute>;

std::string_view attribute(Attributes atts, std::string_view key)
{
    for (const XmlAttribute &a : atts) {
        if (a.name == key) {
            return a.value;
        }
    }
    return {};
}

bool hasAttribute(Attributes atts, std::string_view key)
{
    return std::any_of(
        atts.begin(), atts.end(), [&](const XmlAttribute &a) { return a.name == key; });
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string quotedArgument(std::string_view data)
{
    const std::size_t open = data.find('"');
    const std::size_t close = data.rfind('"');
    if (open == std::string_view::npos || close == open) {
        return std::string(data);
    }
    return std::string(data.substr(open + 1, close - open - 1));
}

} // namespace

Result<Document> XmlReader::read(std::string_view xml, const BinOptions &options)
{
    XmlReader reader(xml, options);
    if (!reader.parse()) {
        return reader.m_error;
    }
    return std::move(reader.m_doc);
}

XmlReader::XmlReader(std::string_view xml, const BinOptions &options)
    : m_xml(xml)
    , m_options(options)
    , m_scanner(xml)
{
}

bool XmlReader::parse()
{
    m_doc.tokens.reserve(m_xml.size() / 48);
    if (!m_scanner.run(*this)) {
        if (!m_failed) {
            fail(m_scanner.message(), m_scanner.errorOffset());
        }
        return false;
    }
    if (!m_rootClosed) {
        fail("no root element", 0);
        return false;
    }
    return true;
}

void XmlReader::startElement(std::string_view name, std::span<const XmlAttribute> atts)
{
    start(name, atts);
}

void XmlReader::endElement()
{
    end();
}

void XmlReader::characters(std::string_view chunk)
{
    text(chunk);
}

void XmlReader::start(std::string_view name, std::span<const XmlAttribute> atts)
{
    if (!m_stack.empty() && m_stack.back().kind != Kind::Open) {
        fail("element <" + std::string(name) + "> inside a value");
        return;
    }
    Frame frame;
    frame.at = m_scanner.eventOffset();
    m_text.clear();
    if (m_stack.empty() && (name == "d:nil" || name == "d:blob")) {
        fail("the root element must be an object, not <" + std::string(name) + ">");
        return;
    }
    if (name == "d:nil") {
        countChild(true);
        frame.kind = Kind::Nil;
        m_doc.tokens.push_back(Token{.kind = Kind::Nil});
        m_stack.push_back(frame);
        return;
    }
    if (name == "d:blob") {
        frame.kind = Kind::Blob;
        const auto size = parseInteger(ValueType::UInt32, attribute(atts, "d:size"));
        if (!size) {
            fail("blob without a valid d:size");
            return;
        }
        frame.declaredSize = static_cast<std::uint32_t>(*size);
        m_stack.push_back(frame);
        return;
    }
    frame.name = storedName(name);
    const bool isObject = !hasAttribute(atts, "d:type") && !hasAttribute(atts, "d:elementType");
    if (m_stack.empty() && !isObject) {
        fail("the root element must be an object, not a value");
        return;
    }
    if (hasAttribute(atts, "d:type")) {
        if (!startValue(frame, attribute(atts, "d:type"), atts)) {
            return;
        }
    } else if (hasAttribute(atts, "d:elementType")) {
        frame.kind = Kind::Array;
        frame.typeName = intern(attribute(atts, "d:elementType"));
        frame.type = valueTypeNamed(attribute(atts, "d:elementType"));
        if (frame.type == ValueType::None) {
            fail("unknown element type \"" + std::string(attribute(atts, "d:elementType")) + "\"");
            return;
        }
    } else {
        frame.kind = Kind::Open;
        std::int32_t id = 0;
        if (hasAttribute(atts, "d:id")) {
            const auto parsed = parseInt32(attribute(atts, "d:id"));
            if (!parsed) {
                fail("d:id \"" + std::string(attribute(atts, "d:id")) + "\" is not a number");
                return;
            }
            id = *parsed;
        }
        countChild(!m_afterRecord);
        frame.openToken = m_doc.tokens.size();
        m_doc.tokens.push_back(Token{.kind = Kind::Open, .name = frame.name, .id = id});
        m_afterRecord = false;
        m_stack.push_back(frame);
        return;
    }
    countChild(true);
    m_stack.push_back(std::move(frame));
}

bool XmlReader::startValue(Frame &frame, std::string_view type, std::span<const XmlAttribute> atts)
{
    if (type == "ref") {
        frame.kind = Kind::Ref;
        return true;
    }
    frame.kind = Kind::Value;
    frame.typeName = intern(type);
    frame.type = valueTypeNamed(type);
    if (frame.type == ValueType::None) {
        fail("unknown type \"" + std::string(type) + "\"");
        return false;
    }
    frame.hasAlt = hasAttribute(atts, "d:alt_encoding");
    if (frame.hasAlt) {
        frame.altEncoding = attribute(atts, "d:alt_encoding");
    }
    return true;
}

void XmlReader::countChild(bool counted)
{
    if (!m_stack.empty() && counted) {
        ++m_stack.back().children;
    }
}

void XmlReader::end()
{
    const Frame frame = std::move(m_stack.back());
    m_stack.pop_back();
    bool ok = true;
    switch (frame.kind) {
    case Kind::Open:
        m_doc.tokens[frame.openToken].count = frame.children;
        m_doc.tokens.push_back(Token{.kind = Kind::Close, .name = frame.name});
        m_rootClosed = m_stack.empty();
        break;
    case Kind::Value:
    case Kind::Ref:
        ok = finishValue(frame);
        break;
    case Kind::Array:
        ok = finishArray(frame);
        break;
    case Kind::Blob:
        ok = finishBlob(frame);
        break;
    case Kind::Nil:
    case Kind::Close:
    case Kind::Record:
        break;
    }
    if (ok) {
        m_text.clear();
    }
}

void XmlReader::text(std::string_view chunk)
{
    if (!m_stack.empty() && m_stack.back().kind != Kind::Open && m_stack.back().kind != Kind::Nil) {
        m_text += chunk;
        return;
    }
    const auto stray = std::find_if(chunk.begin(), chunk.end(), [](char c) { return !isBlank(c); });
    if (stray == chunk.end()) {
        return;
    }
    // Point at the stray text itself when the chunk is a piece of the document.
    const bool inDocument =
        chunk.data() >= m_xml.data() && chunk.data() < m_xml.data() + m_xml.size();
    fail("text outside a value",
         inDocument ? static_cast<std::size_t>(chunk.data() - m_xml.data())
                 + static_cast<std::size_t>(stray - chunk.begin())
                    : here);
}

void XmlReader::instruction(std::string_view target, std::string_view data)
{
    if (!m_options.honourLosslessMarks) {
        return;
    }
    if (target == "serz-anonymous") {
        m_anonymous = true;
        m_nameIndex.clear();
    } else if (target == "serz-name") {
        m_pendingName = quotedArgument(data);
        m_hasPendingName = true;
    } else if (target == "serz-record") {
        if (m_rootClosed) {
            fail("serz-record after the root element");
            return;
        }
        const auto parts = splitWords(data);
        std::uint32_t flag = 0;
        std::uint32_t number = 0;
        if (parts.size() != 2
            || std::from_chars(parts[0].data(), parts[0].data() + parts[0].size(), flag, 16).ec
                != std::errc()
            || std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), number, 16).ec
                != std::errc()
            || flag > 255) {
            fail("serz-record needs a flag byte and a number in hex");
            return;
        }
        m_doc.tokens.push_back(
            Token{.kind = Kind::Record, .flag = static_cast<std::uint8_t>(flag), .count = number});
        m_afterRecord = true;
    } else if (target == "serz-exact") {
        m_exact.clear();
        for (const std::string_view word : splitWords(data)) {
            std::uint64_t bits = 0;
            const auto res = std::from_chars(word.data(), word.data() + word.size(), bits, 16);
            if (res.ec != std::errc() || res.ptr != word.data() + word.size()) {
                fail("serz-exact holds a word that is not hex");
                return;
            }
            m_exact.push_back(bits);
        }
    }
}

bool XmlReader::finishValue(const Frame &frame)
{
    Token token{.kind = frame.kind, .type = frame.type, .name = frame.name};
    token.typeName = frame.typeName;
    if (frame.kind == Kind::Ref) {
        const auto id = parseInt32(m_text);
        if (!id) {
            fail("ref value \"" + m_text + "\" is not a number", frame.at);
            return false;
        }
        token.id = *id;
        m_doc.tokens.push_back(token);
        return true;
    }
    std::uint64_t bits = 0;
    if (frame.type == ValueType::String) {
        bits = intern(m_text);
    } else if (isFloat(frame.type)) {
        // d:alt_encoding holds the exact value, but a person edits the text.
        const auto parsed = scalarFloat(
            frame.type,
            m_text,
            frame.hasAlt ? std::optional<std::string_view>(frame.altEncoding) : std::nullopt);
        if (!parsed) {
            fail("\"" + m_text + "\" is not a " + std::string(valueTypeName(frame.type)), frame.at);
            return false;
        }
        bits = *parsed;
    } else {
        const auto parsed = parseInteger(frame.type, m_text);
        if (!parsed) {
            fail("\"" + m_text + "\" is not a " + std::string(valueTypeName(frame.type)), frame.at);
            return false;
        }
        bits = *parsed;
    }
    token.count = 1;
    token.first = m_doc.values.size();
    m_doc.values.push_back(bits);
    m_doc.tokens.push_back(token);
    return true;
}

bool XmlReader::finishArray(const Frame &frame)
{
    const auto items = splitWords(m_text);
    if (items.size() > 255) {
        fail("array holds more than 255 elements", frame.at);
        return false;
    }
    const bool useExact = m_exact.size() == items.size() && isFloat(frame.type);
    Token token{.kind = Kind::Array, .type = frame.type, .name = frame.name};
    token.typeName = frame.typeName;
    token.count = static_cast<std::uint32_t>(items.size());
    token.first = m_doc.values.size();
    std::string printed;
    for (std::size_t i = 0; i < items.size(); ++i) {
        std::optional<std::uint64_t> bits;
        if (frame.type == ValueType::String) {
            bits = intern(items[i]);
        } else if (isFloat(frame.type)) {
            bits = parseFloat(frame.type, items[i]);
            if (useExact) {
                printed.clear();
                appendFixedFloat(printed, floatValue(frame.type, m_exact[i]));
                if (printed == items[i]) {
                    bits = m_exact[i];
                }
            }
        } else {
            bits = parseInteger(frame.type, items[i]);
        }
        if (!bits) {
            fail("\"" + std::string(items[i]) + "\" is not a "
                     + std::string(valueTypeName(frame.type)),
                 frame.at);
            return false;
        }
        m_doc.values.push_back(*bits);
    }
    m_exact.clear();
    m_doc.tokens.push_back(token);
    return true;
}

bool XmlReader::finishBlob(const Frame &frame)
{
    Token token{.kind = Kind::Blob};
    token.first = m_doc.blobBytes.size();
    if (!appendHexBytes(m_text, m_doc.blobBytes)) {
        fail("blob holds a character that is not a hex digit, or an odd digit", frame.at);
        return false;
    }
    const std::size_t size = m_doc.blobBytes.size() - token.first;
    if (size != frame.declaredSize) {
        fail("blob holds " + std::to_string(size) + " bytes but d:size says "
                 + std::to_string(frame.declaredSize),
             frame.at);
        return false;
    }
    token.count = frame.declaredSize;
    m_doc.tokens.push_back(token);
    return true;
}

std::uint32_t XmlReader::intern(std::string_view text)
{
    const auto found = m_index.find(text);
    if (found != m_index.end()) {
        return found->second;
    }
    if (utf8CharCount(text) == utf8Overrun) {
        fail("text ends inside a UTF-8 character");
    }
    const auto index = static_cast<std::uint32_t>(m_doc.strings.size());
    m_doc.strings.emplace_back(text);
    m_index.emplace(std::string(text), index);
    return index;
}

std::uint32_t XmlReader::storedName(std::string_view xmlName)
{
    if (m_hasPendingName) {
        m_hasPendingName = false;
        return intern(m_pendingName);
    }
    const auto found = m_nameIndex.find(xmlName);
    if (found != m_nameIndex.end()) {
        return found->second;
    }
    const std::uint32_t index = intern(storedNameFor(xmlName, m_anonymous));
    m_nameIndex.emplace(std::string(xmlName), index);
    return index;
}

void XmlReader::fail(std::string message, std::size_t at)
{
    if (m_failed) {
        return;
    }
    m_failed = true;
    if (at == here) {
        at = m_scanner.eventOffset();
    }
    m_error.message = std::move(message);
    XmlScanner::lineAndColumn(m_xml, at, m_error.line, m_error.column);
}

} // namespace serz
