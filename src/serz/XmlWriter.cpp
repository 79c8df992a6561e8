#include "serz/XmlWriter.h"

#include "serz/NameMapping.h"
#include "serz/NumberText.h"

namespace serz
{
namespace
{

constexpr std::string_view rootAttributes =
    " xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\"";
constexpr const char *hexDigits = "0123456789ABCDEF";

bool hasEmptyName(const Document &doc)
{
    for (const Token &token : doc.tokens) {
        if ((token.kind == Kind::Open || token.kind == Kind::Value || token.kind == Kind::Array
             || token.kind == Kind::Ref)
            && doc.text(token.name).empty()) {
            return true;
        }
    }
    return false;
}

void appendHex(std::string &out, std::uint64_t bits, int digits)
{
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        out += hexDigits[(bits >> shift) & 15];
    }
}

} // namespace

std::string XmlWriter::write(const Document &doc, const XmlOptions &options)
{
    XmlWriter writer(doc, options);
    writer.writeAll();
    return std::move(writer.m_out);
}

std::string XmlWriter::printedName(std::string_view stored)
{
    return xmlNameFor(stored);
}

XmlWriter::XmlWriter(const Document &doc, const XmlOptions &options)
    : m_doc(doc)
    , m_options(options)
    , m_eol(options.crlf ? "\r\n" : "\n")
    , m_names(doc.strings.size())
    , m_escaped(doc.strings.size())
    , m_nameDone(doc.strings.size())
    , m_escapedDone(doc.strings.size())
{
    // Text runs to about seven times the binary's size; a close guess spares regrowth.
    m_out.reserve(doc.tokens.size() * 40 + doc.values.size() * 10 + doc.blobBytes.size() * 3 + 256);
}

void XmlWriter::writeAll()
{
    m_out += "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
    eol();
    if (m_options.lossless && hasEmptyName(m_doc)) {
        m_anonymous = true;
        m_out += "<?serz-anonymous \"\"?>";
        eol();
    }
    for (std::size_t i = 0; i < m_doc.tokens.size(); ++i) {
        const Token &token = m_doc.tokens[i];
        const bool emptyElement = token.kind == Kind::Open && i + 1 < m_doc.tokens.size()
            && m_doc.tokens[i + 1].kind == Kind::Close;
        if (emptyElement) {
            writeOpen(token, true);
            ++i;
            continue;
        }
        writeToken(i);
    }
}

void XmlWriter::writeToken(std::size_t index)
{
    const Token &token = m_doc.tokens[index];
    switch (token.kind) {
    case Kind::Open:
        writeOpen(token, false);
        break;
    case Kind::Close:
        --m_depth;
        indent();
        m_out += "</";
        m_out += name(token.name);
        m_out += '>';
        eol();
        break;
    case Kind::Value:
    case Kind::Ref:
        writeValue(token);
        break;
    case Kind::Array:
        writeArray(token);
        break;
    case Kind::Nil:
        indent();
        m_out += "<d:nil/>";
        eol();
        break;
    case Kind::Blob:
        writeBlob(token);
        break;
    case Kind::Record:
        if (m_options.lossless) {
            writeRecordMark(token);
        }
        break;
    }
}

void XmlWriter::writeOpen(const Token &token, bool empty)
{
    writeStoredNameMark(token.name);
    indent();
    m_out += '<';
    m_out += name(token.name);
    if (!m_rootWritten) {
        m_out += rootAttributes;
        m_rootWritten = true;
    }
    if (token.id != 0) {
        m_out += " d:id=\"";
        appendInteger(m_out, ValueType::SInt32, static_cast<std::uint64_t>(token.id));
        m_out += '"';
    }
    m_out += empty ? "/>" : ">";
    eol();
    if (!empty) {
        ++m_depth;
    }
}

void XmlWriter::writeValue(const Token &token)
{
    writeStoredNameMark(token.name);
    indent();
    const std::string &tag = name(token.name);
    m_out += '<';
    m_out += tag;
    if (token.kind == Kind::Ref) {
        m_out += " d:type=\"ref\">";
        appendInteger(m_out, ValueType::SInt32, static_cast<std::uint64_t>(token.id));
    } else {
        m_out += " d:type=\"";
        m_out += escaped(token.typeName);
        const std::uint64_t bits = m_doc.values[token.first];
        if (isFloat(token.type)) {
            const double value = floatValue(token.type, bits);
            m_out += "\" d:alt_encoding=\"";
            appendAltEncoding(m_out, value);
            m_out += "\" d:precision=\"string\">";
            appendShortFloat(m_out, value, m_options.exponent);
        } else if (token.type == ValueType::String) {
            m_out += "\">";
            m_out += escaped(static_cast<std::uint32_t>(bits));
        } else {
            m_out += "\">";
            appendInteger(m_out, token.type, bits);
        }
    }
    m_out += "</";
    m_out += tag;
    m_out += '>';
    eol();
}

void XmlWriter::writeArray(const Token &token)
{
    writeStoredNameMark(token.name);
    if (m_options.lossless && isFloat(token.type)) {
        writeExactMark(token);
    }
    indent();
    const std::string &tag = name(token.name);
    m_out += '<';
    m_out += tag;
    m_out += " d:numElements=\"";
    appendInteger(m_out, ValueType::UInt32, token.count);
    m_out += "\" d:elementType=\"";
    m_out += escaped(token.typeName);
    m_out += isFloat(token.type) ? "\" d:precision=\"string\">" : "\">";
    for (std::size_t i = 0; i < token.count; ++i) {
        if (i > 0) {
            m_out += ' ';
        }
        const std::uint64_t bits = m_doc.values[token.first + i];
        if (isFloat(token.type)) {
            appendFixedFloat(m_out, floatValue(token.type, bits));
        } else if (token.type == ValueType::String) {
            m_out += escaped(static_cast<std::uint32_t>(bits));
        } else {
            appendInteger(m_out, token.type, bits);
        }
    }
    m_out += "</";
    m_out += tag;
    m_out += '>';
    eol();
}

void XmlWriter::writeBlob(const Token &token)
{
    indent();
    m_out += "<d:blob d:size=\"";
    appendInteger(m_out, ValueType::UInt32, token.count);
    m_out += "\">";
    const std::byte *bytes = m_doc.blobBytes.data() + token.first;
    for (std::size_t i = 0; i < token.count; ++i) {
        if (i > 0) {
            if (i % 32 == 0) {
                eol();
            } else if (i % 8 == 0) {
                m_out += ' ';
            }
        }
        const auto b = static_cast<unsigned>(bytes[i]);
        m_out += hexDigits[b >> 4];
        m_out += hexDigits[b & 15];
    }
    m_out += "</d:blob>";
    eol();
}

void XmlWriter::writeStoredNameMark(std::uint32_t index)
{
    if (!m_options.lossless || !needsStoredNameMark(index)) {
        return;
    }
    indent();
    m_out += "<?serz-name \"";
    m_out += m_doc.text(index);
    m_out += "\"?>";
    eol();
}

bool XmlWriter::needsStoredNameMark(std::uint32_t index) const
{
    const std::string &stored = m_doc.text(index);
    return storedNameFor(xmlNameFor(stored), m_anonymous) != stored;
}

// Marks an array only when "%.7f" would not bring every element back to its exact bits.
void XmlWriter::writeExactMark(const Token &token)
{
    const int digits = token.type == ValueType::Float32 ? 8 : 16;
    bool exact = true;
    std::string text;
    for (std::size_t i = 0; i < token.count && exact; ++i) {
        const std::uint64_t bits = m_doc.values[token.first + i];
        text.clear();
        appendFixedFloat(text, floatValue(token.type, bits));
        exact = parseFloat(token.type, text) == bits;
    }
    if (exact) {
        return;
    }
    indent();
    m_out += "<?serz-exact";
    for (std::size_t i = 0; i < token.count; ++i) {
        m_out += ' ';
        appendHex(m_out, m_doc.values[token.first + i], digits);
    }
    m_out += "?>";
    eol();
}

void XmlWriter::writeRecordMark(const Token &token)
{
    indent();
    m_out += "<?serz-record ";
    appendHex(m_out, token.flag, 2);
    m_out += ' ';
    appendHex(m_out, token.count, 8);
    m_out += "?>";
    eol();
}

void XmlWriter::indent()
{
    m_out.append(m_depth, '\t');
}

const std::string &XmlWriter::name(std::uint32_t index)
{
    if (!m_nameDone[index]) {
        m_names[index] = xmlNameFor(m_doc.text(index));
        m_nameDone[index] = true;
    }
    return m_names[index];
}

const std::string &XmlWriter::escaped(std::uint32_t index)
{
    if (!m_escapedDone[index]) {
        m_escaped[index] = escapeText(m_doc.text(index), m_options.lossless);
        m_escapedDone[index] = true;
    }
    return m_escaped[index];
}

} // namespace serz
