#pragma once
// Compares two documents by what they hold, not by how a file caches its lines.

#include "serz/Document.h"

namespace serz
{

[[nodiscard]] bool sameContent(const Document &a, const Document &b);

} // namespace serz
