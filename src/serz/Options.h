#pragma once
// How text is written: the defaults match the game's 32-bit converter.

#include "serz/NumberText.h"

namespace serz
{

struct XmlOptions {
    bool crlf = true;
    ExponentStyle exponent = ExponentStyle::ThreeDigits;
    // Adds processing instructions that carry what the plain text cannot: records, stored names,
    // exact float array bits.
    bool lossless = false;
};

struct BinOptions {
    // Obey the lossless processing instructions; off, they are ignored as the game's own
    // converter ignores them.
    bool honourLosslessMarks = true;
};

} // namespace serz
