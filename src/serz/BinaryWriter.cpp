#include "serz/BinaryWriter.h"

#include "serz/Utf8.h"

#include <cstring>

namespace serz
{
namespace
{

bool hasName(Kind kind)
{
    return kind == Kind::Open || kind == Kind::Close || kind == Kind::Ref || kind == Kind::Value
        || kind == Kind::Array;
}

bool hasType(Kind kind)
{
    return kind == Kind::Value || kind == Kind::Array;
}

std::uint64_t shapeKey(Kind kind, std::uint32_t name, std::uint32_t type)
{
    return (static_cast<std::uint64_t>(kind) << 40) | (static_cast<std::uint64_t>(name) << 20)
        | type;
}

} // namespace

Result<std::vector<std::byte>> BinaryWriter::write(const Document &doc)
{
    BinaryWriter writer(doc);
    const char header[8] = {'S', 'E', 'R', 'Z', 0, 0, 1, 0};
    writer.put(header, sizeof header);
    for (const Token &token : doc.tokens) {
        if (!writer.writeToken(token)) {
            return writer.m_error;
        }
    }
    return std::move(writer.m_out);
}

BinaryWriter::BinaryWriter(const Document &doc)
    : m_doc(doc)
    , m_binIndex(doc.strings.size(), absent)
{
    m_out.reserve(doc.tokens.size() * 8 + doc.values.size() * 4 + doc.blobBytes.size() + 64);
    m_slotOf.reserve(512);
}

bool BinaryWriter::writeToken(const Token &token)
{
    // A line can only be cached when all its header strings are already in the file.
    const std::uint32_t name = hasName(token.kind) ? knownIndex(token.name) : 0;
    const std::uint32_t type = hasType(token.kind) ? knownIndex(token.typeName) : 0;
    bool cached = false;
    if (name != absent && type != absent) {
        const auto found = m_slotOf.find(shapeKey(token.kind, name, type));
        if (found != m_slotOf.end()) {
            putU8(found->second);
            cached = true;
        }
    }
    if (!cached) {
        putU8(0xFF);
        putU8(static_cast<std::uint8_t>(token.kind));
        if (hasName(token.kind) && !writeString(token.name)) {
            return false;
        }
        if (hasType(token.kind) && !writeString(token.typeName)) {
            return false;
        }
        const std::uint64_t key = shapeKey(token.kind,
                                           hasName(token.kind) ? knownIndex(token.name) : 0,
                                           hasType(token.kind) ? knownIndex(token.typeName) : 0);
        if (m_slotUsed[m_nextSlot]) {
            m_slotOf.erase(m_slotKey[m_nextSlot]);
        }
        m_slotKey[m_nextSlot] = key;
        m_slotUsed[m_nextSlot] = true;
        m_slotOf[key] = static_cast<std::uint8_t>(m_nextSlot);
        m_nextSlot = (m_nextSlot + 1) % m_slotKey.size();
    }
    switch (token.kind) {
    case Kind::Open:
        putU32(static_cast<std::uint32_t>(token.id));
        putU32(token.count);
        break;
    case Kind::Ref:
        putU32(static_cast<std::uint32_t>(token.id));
        break;
    case Kind::Value:
        return writeValue(token.type, m_doc.values[token.first]);
    case Kind::Array:
        if (token.count > 255) {
            m_error.message = "array <" + m_doc.text(token.name) + "> has more than 255 elements";
            return false;
        }
        putU8(static_cast<std::uint8_t>(token.count));
        for (std::size_t i = 0; i < token.count; ++i) {
            if (!writeValue(token.type, m_doc.values[token.first + i])) {
                return false;
            }
        }
        break;
    case Kind::Blob:
        putU32(token.count);
        put(m_doc.blobBytes.data() + token.first, token.count);
        break;
    case Kind::Record:
        putU8(token.flag);
        putU32(token.count);
        break;
    case Kind::Close:
    case Kind::Nil:
        break;
    }
    return true;
}

bool BinaryWriter::writeValue(ValueType type, std::uint64_t bits)
{
    if (type == ValueType::String) {
        return writeString(static_cast<std::uint32_t>(bits));
    }
    put(&bits, valueWidth(type)); // little-endian: the low bytes are the value
    return true;
}

bool BinaryWriter::writeString(std::uint32_t docIndex)
{
    const std::uint32_t known = knownIndex(docIndex);
    if (known != absent) {
        putU16(static_cast<std::uint16_t>(known));
        return true;
    }
    if (m_byText.size() >= 0xFFFF) {
        m_error.message = "more than 65535 distinct strings";
        return false;
    }
    const std::string &text = m_doc.text(docIndex);
    const std::size_t chars = utf8CharCount(text);
    if (chars == utf8Overrun) {
        m_error.message = "string \"" + text + "\" ends inside a UTF-8 character";
        return false;
    }
    const auto index = static_cast<std::uint32_t>(m_byText.size());
    m_byText.emplace(text, index);
    m_binIndex[docIndex] = index;
    putU16(0xFFFF);
    putU32(static_cast<std::uint32_t>(chars));
    put(text.data(), text.size());
    return true;
}

std::uint32_t BinaryWriter::knownIndex(std::uint32_t docIndex)
{
    std::uint32_t &index = m_binIndex[docIndex];
    if (index == absent) {
        // The same text may sit at two document indices; the file holds it once.
        const auto found = m_byText.find(m_doc.text(docIndex));
        if (found != m_byText.end()) {
            index = found->second;
        }
    }
    return index;
}

void BinaryWriter::put(const void *data, std::size_t size)
{
    const std::size_t at = m_out.size();
    m_out.resize(at + size);
    if (size > 0) {
        std::memcpy(m_out.data() + at, data, size);
    }
}

} // namespace serz
