// Feeds arbitrary bytes to the binary reader; whatever it accepts must survive the way back.

#include "serz/Converter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::span bin(reinterpret_cast<const std::byte *>(data), size);
    const auto xml = serz::toXml(bin, serz::XmlOptions{});
    if (!xml) {
        return 0;
    }
    // The lossless text of an accepted binary must read back to a decodable binary.
    const auto lossless = serz::toXml(bin, serz::XmlOptions{.lossless = true});
    const auto back = serz::toBinary(lossless.value(), {});
    if (back && !serz::toXml(back.value(), {})) {
        std::abort();
    }
    return 0;
}
