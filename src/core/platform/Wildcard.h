#pragma once
// File-name patterns as Windows matches them: '*' and '?', case-blind, and "*.*" or a trailing
// ".*" also matching names without an extension.

#include <QString>

namespace platform
{

class Wildcard
{
public:
    static bool hasWildcards(const QString &name);
    static bool matches(const QString &pattern, const QString &name);
};

} // namespace platform
