#pragma once
// Reading values back from the text of an element, as a person may have left it.

#include "serz/Document.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace serz
{

// The words of an array's text; elements are separated by any run of blanks.
[[nodiscard]] std::vector<std::string_view> splitWords(std::string_view text);

// A scalar float: the d:alt_encoding value while the text still reads as that value prints
// (in either exponent style), otherwise the text itself.
[[nodiscard]] std::optional<std::uint64_t>
scalarFloat(ValueType type, std::string_view text, std::optional<std::string_view> altEncoding);

// Appends the bytes of hex text, blanks ignored; false on a stray character or an odd digit.
[[nodiscard]] bool appendHexBytes(std::string_view text, std::vector<std::byte> &out);

} // namespace serz
