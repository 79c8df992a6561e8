#include "serz/Utf8.h"

namespace serz
{

std::size_t utf8BytesForChars(std::span<const std::byte> bytes, std::size_t chars)
{
    std::size_t pos = 0;
    for (std::size_t i = 0; i < chars; ++i) {
        if (pos >= bytes.size()) {
            return utf8Overrun;
        }
        pos += utf8SequenceLength(static_cast<unsigned char>(bytes[pos]));
    }
    return pos <= bytes.size() ? pos : utf8Overrun;
}

std::size_t utf8CharCount(std::string_view text)
{
    std::size_t count = 0;
    std::size_t pos = 0;
    for (; pos < text.size(); ++count) {
        pos += utf8SequenceLength(static_cast<unsigned char>(text[pos]));
    }
    return pos == text.size() ? count : utf8Overrun;
}

} // namespace serz
