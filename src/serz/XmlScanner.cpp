#include "serz/XmlScanner.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace serz
{
namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isNameStart(char c)
{
    const auto u = static_cast<unsigned char>(c);
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u == '_' || u == ':' || u >= 0x80;
}

bool isNameChar(char c)
{
    return isNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

void appendUtf8(std::string &out, std::uint32_t cp)
{
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

bool isXmlChar(std::uint32_t cp)
{
    return cp == 0x9 || cp == 0xA || cp == 0xD || (cp >= 0x20 && cp <= 0xD7FF)
        || (cp >= 0xE000 && cp <= 0xFFFD) || (cp >= 0x10000 && cp <= 0x10FFFF);
}

} // namespace

XmlScanner::XmlScanner(std::string_view xml)
    : m_xml(xml)
{
}

void XmlScanner::lineAndColumn(std::string_view xml, std::size_t offset, int &line, int &column)
{
    offset = std::min(offset, xml.size());
    line = 1
        + static_cast<int>(std::count(xml.begin(), xml.begin() + static_cast<long>(offset), '\n'));
    const std::size_t lineStart = offset == 0 ? 0 : xml.rfind('\n', offset - 1);
    column = static_cast<int>(
        lineStart == std::string_view::npos || offset == 0 ? offset + 1 : offset - lineStart);
}

bool XmlScanner::run(XmlEvents &events)
{
    if (m_xml.substr(0, 3) == "\xEF\xBB\xBF") {
        m_pos = 3;
    }
    while (m_pos < m_xml.size()) {
        const bool ok = m_xml[m_pos] == '<' ? scanMarkup(events) : scanText(events);
        if (!ok) {
            return false;
        }
        if (events.stopped()) {
            return false;
        }
    }
    if (!m_open.empty()) {
        return fail("no closing tag for <" + std::string(m_open.back()) + ">", m_xml.size());
    }
    if (!m_rootSeen) {
        return fail("no element found", m_xml.size());
    }
    return true;
}

bool XmlScanner::scanMarkup(XmlEvents &events)
{
    m_eventAt = m_pos;
    const std::string_view rest = m_xml.substr(m_pos);
    if (rest.starts_with("<?")) {
        return scanInstruction(events);
    }
    if (rest.starts_with("<!--")) {
        return scanComment();
    }
    if (rest.starts_with("<![CDATA[")) {
        return scanCData(events);
    }
    if (rest.starts_with("<!")) {
        return fail("declarations (DOCTYPE) are not supported", m_pos);
    }
    if (rest.starts_with("</")) {
        return scanEndTag(events);
    }
    return scanStartTag(events);
}

bool XmlScanner::scanStartTag(XmlEvents &events)
{
    if (m_rootSeen && m_open.empty()) {
        return fail("junk after document element", m_pos);
    }
    ++m_pos;
    std::string_view name;
    if (!scanName(name)) {
        return false;
    }
    bool selfClosing = false;
    if (!scanAttributes(selfClosing)) {
        return false;
    }
    m_rootSeen = true;
    events.startElement(name, m_attributes);
    if (selfClosing) {
        if (!events.stopped()) {
            events.endElement();
        }
    } else {
        m_open.push_back(name);
    }
    return true;
}

bool XmlScanner::scanAttributes(bool &selfClosing)
{
    m_attributes.clear();
    m_attributeText.clear();
    std::vector<std::size_t> decodedAt; // attribute index -> m_attributeText index + 1, or 0
    while (true) {
        const bool hadBlank = m_pos < m_xml.size() && isBlank(m_xml[m_pos]);
        skipBlanks();
        if (m_pos >= m_xml.size()) {
            return fail("unclosed token", m_eventAt);
        }
        if (m_xml[m_pos] == '>') {
            ++m_pos;
            break;
        }
        if (m_xml.substr(m_pos, 2) == "/>") {
            m_pos += 2;
            selfClosing = true;
            break;
        }
        if (!hadBlank) {
            return fail("not well-formed (invalid token)", m_pos);
        }
        XmlAttribute attribute;
        if (!scanName(attribute.name)) {
            return false;
        }
        skipBlanks();
        if (m_pos >= m_xml.size() || m_xml[m_pos] != '=') {
            return fail("not well-formed (expected '=')", m_pos);
        }
        ++m_pos;
        skipBlanks();
        if (m_pos >= m_xml.size() || (m_xml[m_pos] != '"' && m_xml[m_pos] != '\'')) {
            return fail("not well-formed (expected a quoted value)", m_pos);
        }
        const char quote = m_xml[m_pos++];
        const std::size_t end = m_xml.find(quote, m_pos);
        if (end == std::string_view::npos) {
            return fail("unclosed token", m_eventAt);
        }
        const std::string_view raw = m_xml.substr(m_pos, end - m_pos);
        if (raw.find('<') != std::string_view::npos) {
            return fail("not well-formed ('<' in an attribute value)", m_pos);
        }
        for (const XmlAttribute &seen : m_attributes) {
            if (seen.name == attribute.name) {
                return fail("duplicate attribute", m_pos);
            }
        }
        attribute.value = raw;
        decodedAt.push_back(0);
        if (std::any_of(raw.begin(), raw.end(), [](char c) { return c == '&' || isBlank(c); })) {
            std::string decoded;
            if (!decode(raw, decoded, true)) {
                return false;
            }
            m_attributeText.push_back(std::move(decoded));
            decodedAt.back() = m_attributeText.size();
        }
        m_attributes.push_back(attribute);
        m_pos = end + 1;
    }
    // Decoded values live in m_attributeText, which no longer grows.
    for (std::size_t i = 0; i < m_attributes.size(); ++i) {
        if (decodedAt[i] != 0) {
            m_attributes[i].value = m_attributeText[decodedAt[i] - 1];
        }
    }
    return true;
}

bool XmlScanner::scanEndTag(XmlEvents &events)
{
    m_pos += 2;
    std::string_view name;
    if (!scanName(name)) {
        return false;
    }
    skipBlanks();
    if (m_pos >= m_xml.size() || m_xml[m_pos] != '>') {
        return fail("not well-formed (invalid token)", m_pos);
    }
    ++m_pos;
    if (m_open.empty() || m_open.back() != name) {
        return fail("mismatched tag", m_eventAt);
    }
    m_open.pop_back();
    events.endElement();
    return true;
}

bool XmlScanner::scanInstruction(XmlEvents &events)
{
    const std::size_t start = m_pos;
    m_pos += 2;
    std::string_view target;
    if (!scanName(target)) {
        return false;
    }
    const std::size_t end = m_xml.find("?>", m_pos);
    if (end == std::string_view::npos) {
        return fail("unclosed token", start);
    }
    std::string_view data = m_xml.substr(m_pos, end - m_pos);
    m_pos = end + 2;
    if (!data.empty() && !isBlank(data.front())) {
        return fail("not well-formed (invalid token)", start);
    }
    while (!data.empty() && isBlank(data.front())) {
        data.remove_prefix(1);
    }
    if (target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm'
        && (target[2] | 0x20) == 'l') {
        const std::size_t expected = m_xml.starts_with("\xEF\xBB\xBF") ? 3 : 0;
        if (start != expected) {
            return fail("XML or text declaration not at start of entity", start);
        }
        return true;
    }
    events.instruction(target, data);
    return true;
}

bool XmlScanner::scanComment()
{
    const std::size_t end = m_xml.find("-->", m_pos + 4);
    if (end == std::string_view::npos) {
        return fail("unclosed token", m_pos);
    }
    m_pos = end + 3;
    return true;
}

bool XmlScanner::scanCData(XmlEvents &events)
{
    if (m_open.empty()) {
        return fail("CDATA outside the root element", m_pos);
    }
    const std::size_t begin = m_pos + 9;
    const std::size_t end = m_xml.find("]]>", begin);
    if (end == std::string_view::npos) {
        return fail("unclosed CDATA section", m_pos);
    }
    m_pos = end + 3;
    const std::string_view raw = m_xml.substr(begin, end - begin);
    if (raw.find('\r') == std::string_view::npos) {
        events.characters(raw);
        return true;
    }
    m_text.clear();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r') {
            m_text += '\n';
            i += i + 1 < raw.size() && raw[i + 1] == '\n' ? 1U : 0U;
        } else {
            m_text += raw[i];
        }
    }
    events.characters(m_text);
    return true;
}

bool XmlScanner::scanText(XmlEvents &events)
{
    m_eventAt = m_pos;
    const void *found = std::memchr(m_xml.data() + m_pos, '<', m_xml.size() - m_pos);
    const std::size_t end = found == nullptr
        ? m_xml.size()
        : static_cast<std::size_t>(static_cast<const char *>(found) - m_xml.data());
    const std::string_view raw = m_xml.substr(m_pos, end - m_pos);
    // A fault in text is reported where its first visible character stands.
    const auto visible = std::find_if(raw.begin(), raw.end(), [](char c) { return !isBlank(c); });
    m_eventAt = m_pos + static_cast<std::size_t>(visible - raw.begin());
    m_pos = end;
    if (m_open.empty()) {
        if (!std::all_of(raw.begin(), raw.end(), isBlank)) {
            return fail(m_rootSeen ? "junk after document element" : "syntax error", m_eventAt);
        }
        return true;
    }
    const bool plain = std::none_of(
        raw.begin(), raw.end(), [](char c) { return c == '&' || c == '\r' || c == ']'; });
    if (plain) {
        events.characters(raw);
        return true;
    }
    m_text.clear();
    if (!decode(raw, m_text, false)) {
        return false;
    }
    events.characters(m_text);
    return true;
}

// Replaces references and normalises line ends (and, in attribute values, blanks to spaces).
bool XmlScanner::decode(std::string_view raw, std::string &out, bool attribute)
{
    const std::size_t base = static_cast<std::size_t>(raw.data() - m_xml.data());
    out.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c == '&') {
            const std::size_t semi = raw.find(';', i + 1);
            if (semi == std::string_view::npos) {
                return fail("not well-formed (invalid token)", base + i);
            }
            if (!appendReference(raw.substr(i + 1, semi - i - 1), out, base + i)) {
                return false;
            }
            i = semi;
        } else if (c == '\r') {
            out += attribute ? ' ' : '\n';
            i += i + 1 < raw.size() && raw[i + 1] == '\n' ? 1U : 0U;
        } else if (attribute && isBlank(c)) {
            out += ' ';
        } else if (!attribute && c == ']' && raw.substr(i, 3) == "]]>") {
            return fail("not well-formed (']]>' in text)", base + i);
        } else {
            out += c;
        }
    }
    return true;
}

bool XmlScanner::appendReference(std::string_view ref, std::string &out, std::size_t at)
{
    if (ref == "amp") {
        out += '&';
    } else if (ref == "lt") {
        out += '<';
    } else if (ref == "gt") {
        out += '>';
    } else if (ref == "apos") {
        out += '\'';
    } else if (ref == "quot") {
        out += '"';
    } else if (ref.starts_with('#')) {
        const bool isHex = ref.size() > 1 && ref[1] == 'x';
        const std::string_view digits = ref.substr(isHex ? 2 : 1);
        std::uint32_t cp = 0;
        const auto res =
            std::from_chars(digits.data(), digits.data() + digits.size(), cp, isHex ? 16 : 10);
        if (digits.empty() || res.ec != std::errc() || res.ptr != digits.data() + digits.size()
            || !isXmlChar(cp)) {
            return fail("reference to invalid character number", at);
        }
        appendUtf8(out, cp);
    } else {
        return fail("undefined entity", at);
    }
    return true;
}

bool XmlScanner::scanName(std::string_view &name)
{
    const std::size_t start = m_pos;
    if (m_pos >= m_xml.size() || !isNameStart(m_xml[m_pos])) {
        return fail("not well-formed (invalid token)", m_pos);
    }
    while (m_pos < m_xml.size() && isNameChar(m_xml[m_pos])) {
        ++m_pos;
    }
    name = m_xml.substr(start, m_pos - start);
    return true;
}

void XmlScanner::skipBlanks()
{
    while (m_pos < m_xml.size() && isBlank(m_xml[m_pos])) {
        ++m_pos;
    }
}

bool XmlScanner::fail(std::string message, std::size_t at)
{
    m_message = std::move(message);
    m_errorAt = at;
    return false;
}

} // namespace serz
