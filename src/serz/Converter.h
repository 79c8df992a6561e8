#pragma once
// The converter's entry points: binary to XML, XML to binary, and a file-to-file conversion that
// never leaves a half-written target.

#include "serz/Options.h"
#include "serz/Result.h"

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace serz
{

[[nodiscard]] Result<std::string> toXml(std::span<const std::byte> bin, const XmlOptions &options);
[[nodiscard]] Result<std::vector<std::byte>> toBinary(std::string_view xml,
                                                      const BinOptions &options);

// True when the bytes are a binary ("SERZ" first); anything else is read as XML.
[[nodiscard]] bool looksBinary(std::span<const std::byte> bytes);

// Converts in the direction the source's content asks for. The target is written to a
// temporary file in its folder and renamed over it, so a failure leaves it untouched.
[[nodiscard]] Result<Done> convertFile(const std::filesystem::path &source,
                                       const std::filesystem::path &target,
                                       const XmlOptions &xmlOptions,
                                       const BinOptions &binOptions = {});

[[nodiscard]] Result<std::vector<std::byte>> readWholeFile(const std::filesystem::path &path);
[[nodiscard]] Result<Done> replaceFile(const std::filesystem::path &target,
                                       std::span<const std::byte> bytes);

} // namespace serz
