#pragma once
// The token list both sides of the converter meet in: strings by index, values as raw bits,
// blob bytes in one pool. Names are kept exactly as the binary stores them.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace serz
{

enum class Kind : std::uint8_t {
    Open = 0x50,
    Close = 0x70,
    Value = 0x56,
    Array = 0x41,
    Ref = 0x52,
    Nil = 0x4E,
    Blob = 0x42,
    Record = 0x43,
};

enum class ValueType : std::uint8_t {
    None,
    Bool,
    SInt8,
    UInt8,
    SInt16,
    UInt16,
    SInt32,
    UInt32,
    SInt64,
    UInt64,
    Float32,
    Float64,
    String,
};

// The type named in a value or array header; None for a name the format does not know.
[[nodiscard]] ValueType valueTypeNamed(std::string_view name);
[[nodiscard]] std::string_view valueTypeName(ValueType type);
// Bytes one value of the type takes in the binary (a string reference counts 2).
[[nodiscard]] std::size_t valueWidth(ValueType type);
[[nodiscard]] bool isFloat(ValueType type);

struct Token {
    Kind kind = Kind::Nil;
    ValueType type = ValueType::None; // Value and Array
    std::uint8_t flag = 0; // Record: the byte before its number
    std::uint32_t name = 0; // string index: Open, Close, Value, Array, Ref
    std::uint32_t typeName = 0; // string index: Value, Array
    std::int32_t id = 0; // Open: object id; Ref: the id referred to
    std::uint32_t count = 0; // Open: children; Array: elements; Blob: bytes; Record: number
    std::size_t first = 0; // Value/Array: index in values; Blob: offset in blobBytes
};

// Integers are stored sign-extended, floats as their IEEE bits (a float in the low 32 bits),
// strings as string indices.
struct Document {
    std::vector<std::string> strings;
    std::vector<Token> tokens;
    std::vector<std::uint64_t> values;
    std::vector<std::byte> blobBytes;

    [[nodiscard]] const std::string &text(std::uint32_t index) const { return strings[index]; }
};

} // namespace serz
