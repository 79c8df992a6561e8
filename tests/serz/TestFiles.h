#pragma once
// Shared helpers for the converter tests: sample files, byte strings, a scratch folder.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace serztest
{

std::filesystem::path samplesDir();
bool haveSamples();
std::vector<std::byte> readBytes(const std::filesystem::path &path);
std::string readText(const std::filesystem::path &path);
void writeBytes(const std::filesystem::path &path, std::string_view bytes);
std::vector<std::byte> bytes(std::string_view text);
std::string text(const std::vector<std::byte> &bytes);
std::string withoutCr(std::string_view text);
// "FF 50 0A" -> bytes; blanks ignored.
std::string hex(std::string_view digits);

// A fresh folder under the system's temporary folder, removed at the end of its scope.
class ScratchDir
{
public:
    ScratchDir();
    ~ScratchDir();
    ScratchDir(const ScratchDir &) = delete;
    ScratchDir &operator=(const ScratchDir &) = delete;

    [[nodiscard]] const std::filesystem::path &path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace serztest
