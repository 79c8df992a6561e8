#pragma once
// serz --check: round-trips every binary under the given paths and reports each one.

#include <ostream>
#include <string>
#include <vector>

namespace serz
{

// Returns the exit code: 0 only when every binary found is stable through XML.
[[nodiscard]] int
runCheck(const std::vector<std::string> &paths, std::ostream &out, std::ostream &progress);

} // namespace serz
