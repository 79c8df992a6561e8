#include "TestFiles.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace serztest
{

std::filesystem::path samplesDir()
{
    return std::filesystem::path(BV_SAMPLES_DIR) / "serz";
}

bool haveSamples()
{
    return std::filesystem::is_directory(samplesDir());
}

std::vector<std::byte> readBytes(const std::filesystem::path &path)
{
    return bytes(readText(path));
}

std::string readText(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeBytes(const std::filesystem::path &path, std::string_view data)
{
    std::ofstream out(path, std::ios::binary);
    out.write(data.data(), static_cast<std::streamsize>(data.size()));
}

std::vector<std::byte> bytes(std::string_view data)
{
    std::vector<std::byte> out(data.size());
    for (std::size_t i = 0; i < data.size(); ++i) {
        out[i] = static_cast<std::byte>(data[i]);
    }
    return out;
}

std::string text(const std::vector<std::byte> &data)
{
    return {reinterpret_cast<const char *>(data.data()), data.size()};
}

std::string withoutCr(std::string_view data)
{
    std::string out;
    for (const char c : data) {
        if (c != '\r') {
            out += c;
        }
    }
    return out;
}

std::string hex(std::string_view digits)
{
    std::string out;
    int high = -1;
    for (const char c : digits) {
        if (c == ' ' || c == '\n') {
            continue;
        }
        const int v = c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
        if (high < 0) {
            high = v;
        } else {
            out += static_cast<char>(high * 16 + v);
            high = -1;
        }
    }
    return out;
}

ScratchDir::ScratchDir()
{
    static std::atomic<int> counter{0};
    m_path = std::filesystem::temp_directory_path()
        / ("serz-test-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
    std::filesystem::create_directories(m_path);
}

ScratchDir::~ScratchDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

} // namespace serztest
