#pragma once
// What went wrong in a conversion, and where: a byte offset in a binary or a line and column
// in XML text.

#include <cstddef>
#include <string>

namespace serz
{

struct Error {
    std::string message;
    bool atByte = false; // the fault is in binary input, at offset
    std::size_t offset = 0;
    int line = 0; // XML input: 1-based line, 0 when the input is binary
    int column = 0;

    // One line for a person: "at byte 12: ...", "line 3, column 7: ..." or the bare message.
    [[nodiscard]] std::string describe() const;
};

} // namespace serz
