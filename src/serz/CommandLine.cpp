#include "serz/CommandLine.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace serz
{
namespace
{

std::string_view withoutQuotes(std::string_view arg)
{
    if (!arg.empty() && arg.front() == '"') {
        arg.remove_prefix(1);
    }
    if (!arg.empty() && arg.back() == '"') {
        arg.remove_suffix(1);
    }
    return arg;
}

bool startsWithCaseBlind(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size()
        && std::equal(prefix.begin(), prefix.end(), text.begin(), [](char a, char b) {
               return std::tolower(static_cast<unsigned char>(a))
                   == std::tolower(static_cast<unsigned char>(b));
           });
}

} // namespace

std::string CommandLine::bareTarget(std::string_view arg)
{
    arg = withoutQuotes(arg);
    constexpr std::array<std::string_view, 4> prefixes{"/xml:", "/bin:", "xml:", "bin:"};
    for (const std::string_view prefix : prefixes) {
        if (startsWithCaseBlind(arg, prefix)) {
            arg.remove_prefix(prefix.size());
            break;
        }
    }
    return std::string(withoutQuotes(arg));
}

CommandLine CommandLine::parse(const std::vector<std::string_view> &args)
{
    CommandLine cmd;
    std::vector<std::string_view> plain;
    bool check = false;
    for (const std::string_view arg : args) {
        if (arg == "--lf") {
            cmd.xml.crlf = false;
        } else if (arg == "--exp2") {
            cmd.xml.exponent = ExponentStyle::TwoDigits;
        } else if (arg == "--lossless") {
            cmd.xml.lossless = true;
        } else if (arg == "--check") {
            check = true;
        } else if (arg == "--help" || arg == "-h" || arg == "/?") {
            return cmd;
        } else if (arg.size() > 2 && arg.substr(0, 2) == "--") {
            cmd.problem = "unknown option " + std::string(arg);
            return cmd;
        } else {
            plain.push_back(arg);
        }
    }
    if (check) {
        cmd.mode = Mode::Check;
        for (const std::string_view path : plain) {
            cmd.checkPaths.emplace_back(withoutQuotes(path));
        }
        if (cmd.checkPaths.empty()) {
            cmd.problem = "--check needs at least one file or folder";
        }
        return cmd;
    }
    if (plain.size() != 2) {
        cmd.problem = "expected a source and a target";
        return cmd;
    }
    cmd.mode = Mode::Convert;
    cmd.source = withoutQuotes(plain[0]);
    cmd.target = bareTarget(plain[1]);
    return cmd;
}

} // namespace serz
