#include "serz/Document.h"

#include <array>
#include <utility>

namespace serz
{
namespace
{

constexpr std::array<std::pair<std::string_view, ValueType>, 12> typeNames{{
    {"bool", ValueType::Bool},
    {"sInt8", ValueType::SInt8},
    {"sUInt8", ValueType::UInt8},
    {"sInt16", ValueType::SInt16},
    {"sUInt16", ValueType::UInt16},
    {"sInt32", ValueType::SInt32},
    {"sUInt32", ValueType::UInt32},
    {"sInt64", ValueType::SInt64},
    {"sUInt64", ValueType::UInt64},
    {"sFloat32", ValueType::Float32},
    {"sFloat64", ValueType::Float64},
    {"cDeltaString", ValueType::String},
}};

} // namespace

ValueType valueTypeNamed(std::string_view name)
{
    for (const auto &[text, type] : typeNames) {
        if (text == name) {
            return type;
        }
    }
    return ValueType::None;
}

std::string_view valueTypeName(ValueType type)
{
    for (const auto &[text, known] : typeNames) {
        if (known == type) {
            return text;
        }
    }
    return {};
}

std::size_t valueWidth(ValueType type)
{
    switch (type) {
    case ValueType::Bool:
    case ValueType::SInt8:
    case ValueType::UInt8:
        return 1;
    case ValueType::SInt16:
    case ValueType::UInt16:
    case ValueType::String:
        return 2;
    case ValueType::SInt32:
    case ValueType::UInt32:
    case ValueType::Float32:
        return 4;
    case ValueType::SInt64:
    case ValueType::UInt64:
    case ValueType::Float64:
        return 8;
    case ValueType::None:
        break;
    }
    return 0;
}

bool isFloat(ValueType type)
{
    return type == ValueType::Float32 || type == ValueType::Float64;
}

} // namespace serz
