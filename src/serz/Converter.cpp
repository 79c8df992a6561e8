#include "serz/Converter.h"

#include "serz/BinaryReader.h"
#include "serz/BinaryWriter.h"
#include "serz/XmlReader.h"
#include "serz/XmlWriter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <random>
#include <system_error>

namespace serz
{
namespace
{

Error fileError(const std::filesystem::path &path, const std::string &what)
{
    return Error{.message = what + " " + path.string()};
}

} // namespace

Result<std::string> toXml(std::span<const std::byte> bin, const XmlOptions &options)
{
    auto doc = BinaryReader::read(bin);
    if (!doc) {
        return doc.error();
    }
    return XmlWriter::write(doc.value(), options);
}

Result<std::vector<std::byte>> toBinary(std::string_view xml, const BinOptions &options)
{
    auto doc = XmlReader::read(xml, options);
    if (!doc) {
        return doc.error();
    }
    return BinaryWriter::write(doc.value());
}

bool looksBinary(std::span<const std::byte> bytes)
{
    return bytes.size() >= 4 && std::memcmp(bytes.data(), "SERZ", 4) == 0;
}

Result<std::vector<std::byte>> readWholeFile(const std::filesystem::path &path)
{
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) {
        return fileError(path, "is a folder:");
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return fileError(path, std::string("cannot open (") + std::strerror(errno) + "):");
    }
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0, std::ios::beg);
    std::vector<std::byte> bytes(static_cast<std::size_t>(size < 0 ? 0 : size));
    if (!in.read(reinterpret_cast<char *>(bytes.data()), static_cast<std::streamsize>(size))) {
        return fileError(path, "cannot read");
    }
    return bytes;
}

Result<Done> replaceFile(const std::filesystem::path &target, std::span<const std::byte> bytes)
{
    std::random_device seed;
    const std::filesystem::path temp =
        target.string() + ".serz-" + std::to_string(seed() % 1000000) + ".tmp";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out) {
            return fileError(target, std::string("cannot write (") + std::strerror(errno) + "):");
        }
        out.write(reinterpret_cast<const char *>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
        out.close();
        if (!out) {
            std::error_code ignored;
            std::filesystem::remove(temp, ignored);
            return fileError(target, "cannot write");
        }
    }
    std::error_code ec;
    std::filesystem::rename(temp, target, ec);
    if (ec) {
        std::error_code ignored;
        std::filesystem::remove(temp, ignored);
        return fileError(target, "cannot replace (" + ec.message() + "):");
    }
    return Done{};
}

Result<Done> convertFile(const std::filesystem::path &source,
                         const std::filesystem::path &target,
                         const XmlOptions &xmlOptions,
                         const BinOptions &binOptions)
{
    const auto input = readWholeFile(source);
    if (!input) {
        return input.error();
    }
    const std::vector<std::byte> &bytes = input.value();
    if (bytes.empty()) {
        return Error{.message = "empty file"};
    }
    if (looksBinary(bytes)) {
        const auto xml = toXml(bytes, xmlOptions);
        if (!xml) {
            return xml.error();
        }
        const std::string &text = xml.value();
        return replaceFile(
            target, std::span(reinterpret_cast<const std::byte *>(text.data()), text.size()));
    }
    const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    const auto bin = toBinary(text, binOptions);
    if (!bin) {
        return bin.error();
    }
    return replaceFile(target, bin.value());
}

} // namespace serz
