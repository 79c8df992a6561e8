#pragma once
// The serz command's arguments: "SOURCE xml:TARGET", "SOURCE /bin:TARGET", options, --check.

#include "serz/Options.h"

#include <string>
#include <string_view>
#include <vector>

namespace serz
{

struct CommandLine {
    enum class Mode { Convert, Check, Help };

    Mode mode = Mode::Help;
    std::string source;
    std::string target;
    std::vector<std::string> checkPaths;
    XmlOptions xml;
    std::string problem; // set when the arguments make no command

    [[nodiscard]] static CommandLine parse(const std::vector<std::string_view> &args);
    // A path as the workbench passes it: "xml:" or "/bin:" in front, quotes maybe left in.
    [[nodiscard]] static std::string bareTarget(std::string_view arg);
};

} // namespace serz
