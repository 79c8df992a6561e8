#include "serz/CheckCommand.h"

#include "serz/Converter.h"
#include "serz/RoundTripCheck.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace serz
{
namespace
{

namespace fs = std::filesystem;

bool startsWithSerz(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    char magic[4] = {};
    return in.read(magic, 4) && std::string_view(magic, 4) == "SERZ";
}

// Binary files by content, in a stable order so reports compare from run to run.
std::vector<fs::path>
binariesUnder(const std::vector<std::string> &paths, std::ostream &out, int &missing)
{
    std::vector<fs::path> found;
    for (const std::string &given : paths) {
        std::error_code ec;
        const fs::path root(given);
        if (fs::is_directory(root, ec)) {
            std::vector<fs::path> inside;
            for (auto it = fs::recursive_directory_iterator(root, ec);
                 !ec && it != fs::recursive_directory_iterator();
                 it.increment(ec)) {
                if (it->is_regular_file(ec) && startsWithSerz(it->path())) {
                    inside.push_back(it->path());
                }
            }
            std::sort(inside.begin(), inside.end());
            found.insert(found.end(), inside.begin(), inside.end());
        } else if (fs::is_regular_file(root, ec)) {
            if (startsWithSerz(root)) {
                found.push_back(root);
            }
        } else {
            out << "MISSING " << given << '\n';
            ++missing;
        }
    }
    return found;
}

} // namespace

int runCheck(const std::vector<std::string> &paths, std::ostream &out, std::ostream &progress)
{
    int missing = 0;
    const std::vector<fs::path> files = binariesUnder(paths, out, missing);
    std::size_t stable = 0;
    std::size_t identical = 0;
    std::size_t sameContent = 0;
    std::size_t failed = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (files.size() > 10) {
            progress << "[" << (i + 1) << "/" << files.size() << "] " << files[i].string() << '\n';
        }
        const auto bytes = readWholeFile(files[i]);
        const auto report =
            bytes ? checkRoundTrip(bytes.value()) : Result<RoundTripReport>(bytes.error());
        if (!report) {
            ++failed;
            out << "FAIL " << files[i].string() << ": " << report.error().describe() << '\n';
            continue;
        }
        const RoundTripReport &r = report.value();
        stable += r.stable ? 1U : 0U;
        identical += r.losslessSame ? 1U : 0U;
        sameContent += !r.losslessSame && r.contentSame ? 1U : 0U;
        failed += r.stable ? 0 : 1;
        out << (r.stable ? "OK   " : "FAIL ") << files[i].string() << ": " << r.summary() << '\n';
    }
    out << files.size() << " binaries: " << stable << " stable through XML, " << identical
        << " byte-identical through lossless XML, " << sameContent << " equal in content only, "
        << failed << " failed";
    if (missing > 0) {
        out << ", " << missing << " paths missing";
    }
    out << '\n';
    return failed == 0 && missing == 0 ? 0 : 1;
}

} // namespace serz
