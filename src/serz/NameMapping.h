#pragma once
// How stored names and strings appear in the text, and back.

#include <string>
#include <string_view>

namespace serz
{

// "::" becomes "-"; an empty name becomes "e".
[[nodiscard]] std::string xmlNameFor(std::string_view stored);
// Every "-" becomes "::"; "e" stays "e" unless the file marks "e" as the empty name.
[[nodiscard]] std::string storedNameFor(std::string_view xmlName, bool anonymous);
// & < > ' " become entities; with keepCarriageReturns a CR becomes &#13; so a reader keeps it.
[[nodiscard]] std::string escapeText(std::string_view text, bool keepCarriageReturns);

} // namespace serz
