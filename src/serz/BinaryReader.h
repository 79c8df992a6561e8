#pragma once
// Decodes a SERZ binary into a Document, following the line cache and the string table as the
// file builds them.

#include "serz/Document.h"
#include "serz/Result.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace serz
{

class BinaryReader
{
public:
    [[nodiscard]] static Result<Document> read(std::span<const std::byte> bin);

private:
    struct Shape {
        Kind kind = Kind::Nil;
        ValueType type = ValueType::None;
        std::uint32_t name = 0;
        std::uint32_t typeName = 0;
        bool used = false;
    };

    explicit BinaryReader(std::span<const std::byte> bin);

    bool readAll();
    bool readLine();
    bool readShape(Shape &shape);
    bool readPayload(const Shape &shape, std::size_t lineStart);
    bool readValue(ValueType type, std::uint64_t &bits);
    bool readString(std::uint32_t &index);
    bool checkStructure(Token &token, std::size_t lineStart);
    bool need(std::size_t bytes);
    bool fail(std::string message, std::size_t at);

    std::uint8_t u8() { return static_cast<std::uint8_t>(m_bin[m_pos++]); }

    std::uint16_t u16();
    std::uint32_t u32();
    std::uint64_t u64();

    std::span<const std::byte> m_bin;
    std::size_t m_pos = 0;
    Document m_doc;
    std::array<Shape, 255> m_slots{};
    std::size_t m_nextSlot = 0;
    std::vector<std::uint32_t> m_open; // names of the elements not yet closed
    bool m_rootDone = false;
    bool m_rootSeen = false;
    Error m_error;
};

} // namespace serz
