#include "serz/ValueText.h"

#include "serz/NumberText.h"

#include <string>

namespace serz
{
namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return -1;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

std::vector<std::string_view> splitWords(std::string_view text)
{
    std::vector<std::string_view> out;
    std::size_t pos = 0;
    while (pos < text.size()) {
        while (pos < text.size() && isBlank(text[pos])) {
            ++pos;
        }
        const std::size_t begin = pos;
        while (pos < text.size() && !isBlank(text[pos])) {
            ++pos;
        }
        if (pos > begin) {
            out.push_back(text.substr(begin, pos - begin));
        }
    }
    return out;
}

std::optional<std::uint64_t>
scalarFloat(ValueType type, std::string_view text, std::optional<std::string_view> altEncoding)
{
    const auto alt = altEncoding ? parseAltEncoding(*altEncoding) : std::nullopt;
    if (alt) {
        const std::uint64_t altBits = floatBits(type, *alt);
        const double shown = floatValue(type, altBits);
        std::string three;
        std::string two;
        appendShortFloat(three, shown, ExponentStyle::ThreeDigits);
        appendShortFloat(two, shown, ExponentStyle::TwoDigits);
        const std::string_view edited = trimmed(text);
        if (edited == three || edited == two) {
            return altBits;
        }
    }
    return parseFloat(type, text);
}

bool appendHexBytes(std::string_view text, std::vector<std::byte> &out)
{
    int high = -1;
    for (const char c : text) {
        if (isBlank(c)) {
            continue;
        }
        const int digit = hexValue(c);
        if (digit < 0) {
            return false;
        }
        if (high < 0) {
            high = digit;
        } else {
            out.push_back(static_cast<std::byte>(high * 16 + digit));
            high = -1;
        }
    }
    return high < 0;
}

} // namespace serz
