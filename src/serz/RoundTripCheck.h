#pragma once
// What happens to a binary on its way through text and back: whether plain XML is stable,
// whether the lossless form gives the same bytes, and what plain XML gives up.

#include "serz/Result.h"

#include <cstddef>
#include <span>
#include <string>

namespace serz
{

struct RoundTripReport {
    bool stable = false; // binary -> XML -> binary -> XML gives the same text
    bool losslessSame = false; // binary -> lossless XML -> binary gives the same bytes
    bool contentSame = false; // ... or, failing that, the same tokens cached differently
    std::size_t records = 0; // record tokens plain XML drops
    std::size_t roundedFloats = 0; // array elements "%.7f" does not bring back exactly
    std::size_t emptyNames = 0; // names stored empty, printed "e"
    std::size_t dashedNames = 0; // names holding "-", read back with "::"
    std::size_t carriageReturns = 0; // strings holding CR, which XML readers turn to LF

    // "stable, lossless identical; plain XML loses 3 records, 120 rounded floats"
    [[nodiscard]] std::string summary() const;
};

[[nodiscard]] Result<RoundTripReport> checkRoundTrip(std::span<const std::byte> bin);

} // namespace serz
