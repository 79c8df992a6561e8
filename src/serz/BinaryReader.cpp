#include "serz/BinaryReader.h"

#include "serz/Utf8.h"

#include <cstring>

namespace serz
{
namespace
{

constexpr std::byte escapeByte{0xFF};

bool knownKind(std::uint8_t k)
{
    switch (static_cast<Kind>(k)) {
    case Kind::Open:
    case Kind::Close:
    case Kind::Value:
    case Kind::Array:
    case Kind::Ref:
    case Kind::Nil:
    case Kind::Blob:
    case Kind::Record:
        return true;
    }
    return false;
}

std::string hexByte(std::uint8_t b)
{
    constexpr const char *digits = "0123456789ABCDEF";
    return std::string("0x") + digits[b >> 4] + digits[b & 15];
}

} // namespace

Result<Document> BinaryReader::read(std::span<const std::byte> bin)
{
    BinaryReader reader(bin);
    if (!reader.readAll()) {
        return reader.m_error;
    }
    return std::move(reader.m_doc);
}

BinaryReader::BinaryReader(std::span<const std::byte> bin)
    : m_bin(bin)
{
}

bool BinaryReader::readAll()
{
    if (m_bin.size() < 8 || std::memcmp(m_bin.data(), "SERZ", 4) != 0) {
        return fail("not a SERZ binary (no \"SERZ\" header)", 0);
    }
    m_pos = 8;
    // Real files run to about one token per 12 bytes; reserving saves regrowth on big files.
    m_doc.tokens.reserve(m_bin.size() / 12);
    while (m_pos < m_bin.size()) {
        if (!readLine()) {
            return false;
        }
    }
    if (!m_rootSeen) {
        return fail("no root element", m_pos);
    }
    if (!m_open.empty()) {
        return fail("file ends inside element <" + m_doc.text(m_open.back()) + ">", m_pos);
    }
    return true;
}

bool BinaryReader::readLine()
{
    const std::size_t lineStart = m_pos;
    const std::uint8_t lead = u8();
    if (static_cast<std::byte>(lead) != escapeByte) {
        const Shape &cached = m_slots[lead];
        if (!cached.used) {
            return fail("cache slot " + std::to_string(lead) + " used before it was filled",
                        lineStart);
        }
        return readPayload(cached, lineStart);
    }
    Shape shape;
    if (!readShape(shape)) {
        return false;
    }
    m_slots[m_nextSlot] = shape;
    m_nextSlot = (m_nextSlot + 1) % m_slots.size();
    return readPayload(shape, lineStart);
}

bool BinaryReader::readShape(Shape &shape)
{
    if (!need(1)) {
        return false;
    }
    const std::uint8_t kindByte = u8();
    if (!knownKind(kindByte)) {
        return fail("unknown kind byte " + hexByte(kindByte), m_pos - 1);
    }
    shape.kind = static_cast<Kind>(kindByte);
    shape.used = true;
    switch (shape.kind) {
    case Kind::Open:
    case Kind::Close:
    case Kind::Ref:
        return readString(shape.name);
    case Kind::Value:
    case Kind::Array: {
        if (!readString(shape.name)) {
            return false;
        }
        const std::size_t typeAt = m_pos;
        if (!readString(shape.typeName)) {
            return false;
        }
        shape.type = valueTypeNamed(m_doc.text(shape.typeName));
        if (shape.type == ValueType::None) {
            return fail("unknown value type \"" + m_doc.text(shape.typeName) + "\"", typeAt);
        }
        return true;
    }
    case Kind::Nil:
    case Kind::Blob:
    case Kind::Record:
        return true;
    }
    return true;
}

bool BinaryReader::readPayload(const Shape &shape, std::size_t lineStart)
{
    Token token;
    token.kind = shape.kind;
    token.type = shape.type;
    token.name = shape.name;
    token.typeName = shape.typeName;
    switch (shape.kind) {
    case Kind::Open:
        if (!need(8)) {
            return false;
        }
        token.id = static_cast<std::int32_t>(u32());
        token.count = u32();
        break;
    case Kind::Ref:
        if (!need(4)) {
            return false;
        }
        token.id = static_cast<std::int32_t>(u32());
        break;
    case Kind::Value:
        token.first = m_doc.values.size();
        token.count = 1;
        m_doc.values.push_back(0);
        if (!readValue(shape.type, m_doc.values.back())) {
            return false;
        }
        break;
    case Kind::Array:
        if (!need(1)) {
            return false;
        }
        token.count = u8();
        token.first = m_doc.values.size();
        if (shape.type != ValueType::String && !need(token.count * valueWidth(shape.type))) {
            return false;
        }
        for (std::uint32_t i = 0; i < token.count; ++i) {
            m_doc.values.push_back(0);
            if (!readValue(shape.type, m_doc.values.back())) {
                return false;
            }
        }
        break;
    case Kind::Blob:
        if (!need(4)) {
            return false;
        }
        token.count = u32();
        if (!need(token.count)) {
            return false;
        }
        token.first = m_doc.blobBytes.size();
        m_doc.blobBytes.insert(m_doc.blobBytes.end(),
                               m_bin.begin() + static_cast<std::ptrdiff_t>(m_pos),
                               m_bin.begin() + static_cast<std::ptrdiff_t>(m_pos + token.count));
        m_pos += token.count;
        break;
    case Kind::Record:
        if (!need(5)) {
            return false;
        }
        token.flag = u8();
        token.count = u32();
        break;
    case Kind::Close:
    case Kind::Nil:
        break;
    }
    return checkStructure(token, lineStart);
}

// The text form needs one root element holding everything but the records before it.
bool BinaryReader::checkStructure(Token &token, std::size_t lineStart)
{
    if (m_rootDone) {
        return fail("token after the root element was closed", lineStart);
    }
    if (token.kind == Kind::Open) {
        m_rootSeen = true;
        m_open.push_back(token.name);
    } else if (token.kind == Kind::Close) {
        if (m_open.empty() || m_open.back() != token.name) {
            return fail("close of <" + m_doc.text(token.name) + "> does not match the open element",
                        lineStart);
        }
        m_open.pop_back();
        m_rootDone = m_open.empty();
    } else if (token.kind != Kind::Record && m_open.empty()) {
        return fail("value outside the root element", lineStart);
    }
    m_doc.tokens.push_back(token);
    return true;
}

bool BinaryReader::readValue(ValueType type, std::uint64_t &bits)
{
    if (type == ValueType::String) {
        std::uint32_t index = 0;
        if (!readString(index)) {
            return false;
        }
        bits = index;
        return true;
    }
    if (!need(valueWidth(type))) {
        return false;
    }
    switch (type) {
    case ValueType::Bool:
    case ValueType::UInt8:
        bits = u8();
        break;
    case ValueType::SInt8:
        bits = static_cast<std::uint64_t>(static_cast<std::int8_t>(u8()));
        break;
    case ValueType::UInt16:
        bits = u16();
        break;
    case ValueType::SInt16:
        bits = static_cast<std::uint64_t>(static_cast<std::int16_t>(u16()));
        break;
    case ValueType::UInt32:
    case ValueType::Float32:
        bits = u32();
        break;
    case ValueType::SInt32:
        bits = static_cast<std::uint64_t>(static_cast<std::int32_t>(u32()));
        break;
    case ValueType::SInt64:
    case ValueType::UInt64:
    case ValueType::Float64:
        bits = u64();
        break;
    case ValueType::String:
    case ValueType::None:
        break;
    }
    return true;
}

bool BinaryReader::readString(std::uint32_t &index)
{
    const std::size_t at = m_pos;
    if (!need(2)) {
        return false;
    }
    const std::uint16_t ref = u16();
    if (ref != 0xFFFF) {
        if (ref >= m_doc.strings.size()) {
            return fail("string index " + std::to_string(ref) + " was never defined", at);
        }
        index = ref;
        return true;
    }
    if (m_doc.strings.size() >= 0xFFFF) {
        return fail("more than 65535 strings", at);
    }
    if (!need(4)) {
        return false;
    }
    const std::uint32_t chars = u32();
    const std::size_t bytes = utf8BytesForChars(m_bin.subspan(m_pos), chars);
    if (bytes == utf8Overrun) {
        return fail("string of " + std::to_string(chars) + " characters runs past the end", at);
    }
    index = static_cast<std::uint32_t>(m_doc.strings.size());
    m_doc.strings.emplace_back(reinterpret_cast<const char *>(m_bin.data() + m_pos), bytes);
    m_pos += bytes;
    return true;
}

bool BinaryReader::need(std::size_t bytes)
{
    if (m_bin.size() - m_pos < bytes) {
        return fail("file ends inside a token", m_pos);
    }
    return true;
}

bool BinaryReader::fail(std::string message, std::size_t at)
{
    m_error.message = std::move(message);
    m_error.offset = at;
    m_error.atByte = true;
    return false;
}

std::uint16_t BinaryReader::u16()
{
    std::uint16_t v = 0;
    std::memcpy(&v, m_bin.data() + m_pos, 2);
    m_pos += 2;
    return v;
}

std::uint32_t BinaryReader::u32()
{
    std::uint32_t v = 0;
    std::memcpy(&v, m_bin.data() + m_pos, 4);
    m_pos += 4;
    return v;
}

std::uint64_t BinaryReader::u64()
{
    std::uint64_t v = 0;
    std::memcpy(&v, m_bin.data() + m_pos, 8);
    m_pos += 8;
    return v;
}

} // namespace serz
