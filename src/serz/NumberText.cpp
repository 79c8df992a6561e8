#include "serz/NumberText.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace serz
{
namespace
{

constexpr const char *hexDigits = "0123456789ABCDEF";

std::string_view trimmed(std::string_view text)
{
    const auto blank = [](char c) {
        return c == ' ' || c == '\t' || c == '\r' || c == '\n';
    };
    while (!text.empty() && blank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && blank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

// The old runtime's spellings: 1.#INF, -1.#INF, 1.#QNAN, and -1.#IND for the default NaN.
std::string_view specialText(double value)
{
    if (std::isinf(value)) {
        return value < 0 ? "-1.#INF" : "1.#INF";
    }
    if (std::bit_cast<std::uint64_t>(value) == 0xFFF8000000000000ULL) {
        return "-1.#IND";
    }
    return std::signbit(value) ? "-1.#QNAN" : "1.#QNAN";
}

std::optional<double> parseSpecial(std::string_view text)
{
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const auto starts = [&](std::string_view p) {
        return text.substr(0, p.size()) == p;
    };
    double value = 0;
    if (starts("1.#INF") || text == "inf" || text == "infinity") {
        value = std::numeric_limits<double>::infinity();
    } else if (starts("1.#IND")) {
        return std::bit_cast<double>(0xFFF8000000000000ULL);
    } else if (starts("1.#QNAN") || text == "nan") {
        value = std::numeric_limits<double>::quiet_NaN();
    } else {
        return std::nullopt;
    }
    return negative ? -value : value;
}

} // namespace

void appendShortFloat(std::string &out, double value, ExponentStyle style)
{
    if (!std::isfinite(value)) {
        out += specialText(value);
        return;
    }
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 6);
    const std::string_view text(buf, static_cast<std::size_t>(res.ptr - buf));
    const std::size_t e = text.find('e');
    if (style == ExponentStyle::TwoDigits || e == std::string_view::npos
        || text.size() - e - 2 >= 3) {
        out += text;
        return;
    }
    out.append(text.substr(0, e + 2));
    out.append(3 - (text.size() - e - 2), '0');
    out.append(text.substr(e + 2));
}

void appendFixedFloat(std::string &out, double value)
{
    if (!std::isfinite(value)) {
        const std::string_view special = specialText(value);
        out += special;
        // "%.7f" pads the old runtime's special spellings to seven decimals.
        const std::size_t decimals = special.size() - special.find('.') - 1;
        out.append(decimals < 7 ? 7 - decimals : 0, '0');
        return;
    }
    char buf[400];
    const auto res = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, 7);
    out.append(buf, static_cast<std::size_t>(res.ptr - buf));
}

void appendInteger(std::string &out, ValueType type, std::uint64_t bits)
{
    char buf[32];
    std::to_chars_result res{};
    switch (type) {
    case ValueType::SInt8:
    case ValueType::SInt16:
    case ValueType::SInt32:
    case ValueType::SInt64:
        res = std::to_chars(buf, buf + sizeof buf, static_cast<std::int64_t>(bits));
        break;
    default:
        res = std::to_chars(buf, buf + sizeof buf, bits);
        break;
    }
    out.append(buf, static_cast<std::size_t>(res.ptr - buf));
}

void appendAltEncoding(std::string &out, double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    for (int i = 0; i < 8; ++i) {
        const auto byte = static_cast<unsigned>((bits >> (8 * i)) & 0xFF);
        out += hexDigits[byte >> 4];
        out += hexDigits[byte & 15];
    }
}

double floatValue(ValueType type, std::uint64_t bits)
{
    if (type == ValueType::Float32) {
        return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
    }
    return std::bit_cast<double>(bits);
}

std::uint64_t floatBits(ValueType type, double value)
{
    if (type == ValueType::Float32) {
        return std::bit_cast<std::uint32_t>(static_cast<float>(value));
    }
    return std::bit_cast<std::uint64_t>(value);
}

std::optional<std::uint64_t> parseInteger(ValueType type, std::string_view text)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    const char *end = text.data() + text.size();
    const bool isSigned = type == ValueType::SInt8 || type == ValueType::SInt16
        || type == ValueType::SInt32 || type == ValueType::SInt64;
    if (isSigned) {
        std::int64_t v = 0;
        const auto res = std::from_chars(text.data(), end, v);
        if (res.ec != std::errc() || res.ptr != end || text.empty()) {
            return std::nullopt;
        }
        const int bits = static_cast<int>(valueWidth(type) * 8);
        const std::int64_t lo = bits == 64 ? std::numeric_limits<std::int64_t>::min()
                                           : -(std::int64_t{1} << (bits - 1));
        const std::int64_t hi = bits == 64 ? std::numeric_limits<std::int64_t>::max()
                                           : (std::int64_t{1} << (bits - 1)) - 1;
        if (v < lo || v > hi) {
            return std::nullopt;
        }
        return static_cast<std::uint64_t>(v);
    }
    std::uint64_t v = 0;
    const auto res = std::from_chars(text.data(), end, v);
    if (res.ec != std::errc() || res.ptr != end || text.empty()) {
        return std::nullopt;
    }
    const std::size_t width = valueWidth(type);
    if (width < 8 && v >> (width * 8) != 0) {
        return std::nullopt;
    }
    return v;
}

std::optional<std::uint64_t> parseFloat(ValueType type, std::string_view text)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    const char *end = text.data() + text.size();
    if (type == ValueType::Float32) {
        float v = 0;
        const auto res = std::from_chars(text.data(), end, v);
        if (res.ec == std::errc() && res.ptr == end && !text.empty()) {
            return std::bit_cast<std::uint32_t>(v);
        }
    } else {
        double v = 0;
        const auto res = std::from_chars(text.data(), end, v);
        if (res.ec == std::errc() && res.ptr == end && !text.empty()) {
            return std::bit_cast<std::uint64_t>(v);
        }
    }
    const auto special = parseSpecial(text);
    if (special) {
        return floatBits(type, *special);
    }
    return std::nullopt;
}

std::optional<double> parseAltEncoding(std::string_view hex)
{
    hex = trimmed(hex);
    if (hex.size() != 16) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        unsigned byte = 0;
        const auto res = std::from_chars(hex.data() + 2 * i, hex.data() + 2 * i + 2, byte, 16);
        if (res.ec != std::errc() || res.ptr != hex.data() + 2 * i + 2) {
            return std::nullopt;
        }
        bits |= static_cast<std::uint64_t>(byte) << (8 * i);
    }
    return std::bit_cast<double>(bits);
}

std::optional<std::int32_t> parseInt32(std::string_view text)
{
    const auto bits = parseInteger(ValueType::SInt32, text);
    if (!bits) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(static_cast<std::int64_t>(*bits));
}

} // namespace serz
