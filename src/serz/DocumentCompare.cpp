#include "serz/DocumentCompare.h"

#include <algorithm>

namespace serz
{
namespace
{

bool sameValues(const Document &a, const Token &ta, const Document &b, const Token &tb)
{
    for (std::size_t i = 0; i < ta.count; ++i) {
        const std::uint64_t va = a.values[ta.first + i];
        const std::uint64_t vb = b.values[tb.first + i];
        const bool same = ta.type == ValueType::String
            ? a.text(static_cast<std::uint32_t>(va)) == b.text(static_cast<std::uint32_t>(vb))
            : va == vb;
        if (!same) {
            return false;
        }
    }
    return true;
}

bool sameToken(const Document &a, const Token &ta, const Document &b, const Token &tb)
{
    if (ta.kind != tb.kind || ta.type != tb.type || ta.flag != tb.flag || ta.id != tb.id
        || ta.count != tb.count) {
        return false;
    }
    switch (ta.kind) {
    case Kind::Open:
    case Kind::Close:
    case Kind::Ref:
        return a.text(ta.name) == b.text(tb.name);
    case Kind::Value:
    case Kind::Array:
        return a.text(ta.name) == b.text(tb.name) && a.text(ta.typeName) == b.text(tb.typeName)
            && sameValues(a, ta, b, tb);
    case Kind::Blob:
        return std::equal(a.blobBytes.begin() + static_cast<std::ptrdiff_t>(ta.first),
                          a.blobBytes.begin() + static_cast<std::ptrdiff_t>(ta.first + ta.count),
                          b.blobBytes.begin() + static_cast<std::ptrdiff_t>(tb.first));
    case Kind::Nil:
    case Kind::Record:
        return true;
    }
    return true;
}

} // namespace

bool sameContent(const Document &a, const Document &b)
{
    if (a.tokens.size() != b.tokens.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.tokens.size(); ++i) {
        if (!sameToken(a, a.tokens[i], b, b.tokens[i])) {
            return false;
        }
    }
    return true;
}

} // namespace serz
