#include "serz/Error.h"

namespace serz
{

std::string Error::describe() const
{
    if (line > 0) {
        return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": "
            + message;
    }
    if (atByte) {
        return "at byte " + std::to_string(offset) + ": " + message;
    }
    return message;
}

} // namespace serz
