#pragma once
// Hexadecimal text to decimal text, exact as a 96-bit decimal: the game's 64-bit ids pass through.

#include <QString>

namespace core
{

// Empty for text with any character that is not a hexadecimal digit; "0" for empty text; more
// than 96 bits raise failure 6.
QString HexToDec(const QString &hex);

} // namespace core
