// Feeds arbitrary text to the XML reader; every binary it writes must decode again.

#include "serz/Converter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view xml(reinterpret_cast<const char *>(data), size);
    const auto bin = serz::toBinary(xml, {});
    if (!bin) {
        return 0;
    }
    if (!serz::toXml(bin.value(), {})) {
        std::abort();
    }
    return 0;
}
