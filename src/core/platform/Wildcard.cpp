#include "core/platform/Wildcard.h"

namespace platform
{

namespace
{

bool sameLetter(QChar a, QChar b)
{
    return a == b || a.toCaseFolded() == b.toCaseFolded();
}

// Iterative glob match with one backtrack point, linear in practice.
bool glob(QStringView pattern, QStringView name)
{
    qsizetype p = 0;
    qsizetype n = 0;
    qsizetype starP = -1;
    qsizetype starN = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            starP = p++;
            starN = n;
        } else if (p < pattern.size() && (pattern[p] == u'?' || sameLetter(pattern[p], name[n]))) {
            ++p;
            ++n;
        } else if (starP >= 0) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*') {
        ++p;
    }
    return p == pattern.size();
}

} // namespace

bool Wildcard::hasWildcards(const QString &name)
{
    return name.contains(u'*') || name.contains(u'?');
}

bool Wildcard::matches(const QString &pattern, const QString &name)
{
    if (pattern == u"*" || pattern == u"*.*") {
        return true;
    }
    if (glob(pattern, name)) {
        return true;
    }
    // "name.*" also finds "name" itself, as the system's matcher does.
    if (pattern.endsWith(u".*") && !name.contains(u'.')) {
        return glob(QStringView(pattern).chopped(2), name);
    }
    return false;
}

} // namespace platform
