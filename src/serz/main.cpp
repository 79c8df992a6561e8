// serz.exe: converts game binaries to XML and back, as the game's own converter does.

#include "serz/CheckCommand.h"
#include "serz/CommandLine.h"
#include "serz/Converter.h"

#include <iostream>
#include <string_view>
#include <vector>

namespace
{

constexpr const char *usage =
    "usage: serz.exe SOURCE xml:TARGET    binary to XML\n"
    "       serz.exe SOURCE bin:TARGET    XML to binary (also /xml: and /bin:)\n"
    "       serz.exe --check PATH...      round-trip every binary under PATH\n"
    "The direction follows the source's content. Options:\n"
    "  --lf        LF line ends instead of CR LF\n"
    "  --exp2      two-digit exponents (3.40282e+38) instead of three\n"
    "  --lossless  keep records, stored names and exact floats in the XML\n";

} // namespace

int main(int argc, char **argv)
{
    std::ios::sync_with_stdio(false);
    std::vector<std::string_view> args;
    for (int i = 1; i < argc; ++i) {
        args.emplace_back(argv[i]);
    }
    const serz::CommandLine cmd = serz::CommandLine::parse(args);
    if (!cmd.problem.empty()) {
        std::cerr << "serz: " << cmd.problem << '\n' << usage;
        return 2;
    }
    switch (cmd.mode) {
    case serz::CommandLine::Mode::Help:
        std::cout << usage;
        return 0;
    case serz::CommandLine::Mode::Check:
        return serz::runCheck(cmd.checkPaths, std::cout, std::cerr);
    case serz::CommandLine::Mode::Convert:
        break;
    }
    const auto done = serz::convertFile(cmd.source, cmd.target, cmd.xml);
    if (!done) {
        std::cerr << "serz: " << cmd.source << ": " << done.error().describe() << '\n';
        return 1;
    }
    return 0;
}
