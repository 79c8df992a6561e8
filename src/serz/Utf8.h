#pragma once
// String lengths in the binary count characters: these walk UTF-8 by its lead bytes.

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

namespace serz
{

inline constexpr std::size_t utf8Overrun = std::numeric_limits<std::size_t>::max();

// Bytes taken by a sequence starting with this lead byte; a stray byte counts as one.
[[nodiscard]] inline std::size_t utf8SequenceLength(unsigned char lead)
{
    if (lead < 0xC0) {
        return 1;
    }
    if (lead < 0xE0) {
        return 2;
    }
    if (lead < 0xF0) {
        return 3;
    }
    return lead < 0xF8 ? 4 : 1;
}

// Bytes that `chars` characters take at the start of `bytes`, or utf8Overrun.
[[nodiscard]] std::size_t utf8BytesForChars(std::span<const std::byte> bytes, std::size_t chars);
// Characters in the text, or utf8Overrun when its last sequence is cut short: a reader counting
// characters could not find the end of such a string.
[[nodiscard]] std::size_t utf8CharCount(std::string_view text);

} // namespace serz
