#pragma once
// Encodes a Document as a SERZ binary with the converter's cache rule: a line whose shape sits in
// any of the 255 slots is written as that slot's number.

#include "serz/Document.h"
#include "serz/Result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace serz
{

class BinaryWriter
{
public:
    [[nodiscard]] static Result<std::vector<std::byte>> write(const Document &doc);

private:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    explicit BinaryWriter(const Document &doc);

    bool writeToken(const Token &token);
    bool writeString(std::uint32_t docIndex);
    bool writeValue(ValueType type, std::uint64_t bits);
    std::uint32_t knownIndex(std::uint32_t docIndex);
    void put(const void *data, std::size_t size);

    void putU8(std::uint8_t v) { m_out.push_back(static_cast<std::byte>(v)); }

    void putU16(std::uint16_t v) { put(&v, 2); }

    void putU32(std::uint32_t v) { put(&v, 4); }

    const Document &m_doc;
    std::vector<std::byte> m_out;
    std::vector<std::uint32_t> m_binIndex; // per document string: its index in the file, or absent
    std::unordered_map<std::string_view, std::uint32_t> m_byText;
    std::unordered_map<std::uint64_t, std::uint8_t> m_slotOf; // shape key -> slot holding it
    std::array<std::uint64_t, 255> m_slotKey{};
    std::array<bool, 255> m_slotUsed{};
    std::size_t m_nextSlot = 0;
    Error m_error;
};

} // namespace serz
