#pragma once
// Numbers as the converter prints them (C printf "%g" and "%.7f" of the old Microsoft runtime)
// and read back from text a person may have edited.

#include "serz/Document.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace serz
{

enum class ExponentStyle : std::uint8_t {
    ThreeDigits, // 5.76901e+006, as the 32-bit converter prints
    TwoDigits, // 5.76901e+06
};

// Appends a scalar float as "%g" does; infinities and NaN in the old runtime's spelling.
void appendShortFloat(std::string &out, double value, ExponentStyle style);
// Appends an array element as "%.7f" does.
void appendFixedFloat(std::string &out, double value);
// Appends an integer or bool stored as sign-extended bits.
void appendInteger(std::string &out, ValueType type, std::uint64_t bits);
// The 16 hex digits of d:alt_encoding: the value as a double, bytes in file order.
void appendAltEncoding(std::string &out, double value);

[[nodiscard]] double floatValue(ValueType type, std::uint64_t bits);
[[nodiscard]] std::uint64_t floatBits(ValueType type, double value);

// Parsers trim surrounding blanks and reject anything else that is not the number.
[[nodiscard]] std::optional<std::uint64_t> parseInteger(ValueType type, std::string_view text);
[[nodiscard]] std::optional<std::uint64_t> parseFloat(ValueType type, std::string_view text);
[[nodiscard]] std::optional<double> parseAltEncoding(std::string_view hex);
[[nodiscard]] std::optional<std::int32_t> parseInt32(std::string_view text);

} // namespace serz
