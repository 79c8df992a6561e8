#pragma once

// The failures the document's collections raise, with the numbers and texts a collection of the
// program's runtime gives.

namespace xml
{

[[noreturn]] void outOfRange();
[[noreturn]] void noSuchKey();
[[noreturn]] void keyInUse();

} // namespace xml
