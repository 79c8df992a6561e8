#include "serz/NameMapping.h"

namespace serz
{

std::string xmlNameFor(std::string_view stored)
{
    if (stored.empty()) {
        return "e";
    }
    std::string out;
    out.reserve(stored.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        if (stored[i] == ':' && i + 1 < stored.size() && stored[i + 1] == ':') {
            out += '-';
            ++i;
        } else {
            out += stored[i];
        }
    }
    return out;
}

std::string storedNameFor(std::string_view xmlName, bool anonymous)
{
    if (anonymous && xmlName == "e") {
        return {};
    }
    std::string out;
    out.reserve(xmlName.size() + 8);
    for (const char c : xmlName) {
        if (c == '-') {
            out += "::";
        } else {
            out += c;
        }
    }
    return out;
}

std::string escapeText(std::string_view text, bool keepCarriageReturns)
{
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '\'':
            out += "&apos;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\r':
            out += keepCarriageReturns ? "&#13;" : "\r";
            break;
        default:
            out += c;
        }
    }
    return out;
}

} // namespace serz
