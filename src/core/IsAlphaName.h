#pragma once
// Whether a name is made only of letters A-Z, a-z and the marks " $ ' , - . (no digits, no blanks).

#include <QString>

namespace core
{

bool IsAlphaName(const QString &name);

} // namespace core
