#include "core/TextPrimitives.h"

#include "core/platform/Failure.h"

namespace core
{

namespace
{

void requireStart(int start)
{
    if (start < 1) {
        platform::raise(platform::InvalidArgument);
    }
}

void requireLength(int length)
{
    if (length < 0) {
        platform::raise(platform::InvalidArgument);
    }
}

int size(const QString &text)
{
    return static_cast<int>(text.size());
}

} // namespace

int instr(int start, const QString &text, const QString &find, Qt::CaseSensitivity cs)
{
    requireStart(start);
    if (text.isEmpty()) {
        return 0;
    }
    if (find.isEmpty()) {
        return start <= size(text) + 1 ? start : 0;
    }
    if (start > size(text)) {
        return 0;
    }
    return static_cast<int>(text.indexOf(find, start - 1, cs)) + 1;
}

int instr(const QString &text, const QString &find, Qt::CaseSensitivity cs)
{
    return instr(1, text, find, cs);
}

int instrRev(const QString &text, const QString &find, int start, Qt::CaseSensitivity cs)
{
    if (start == 0 || start < -1) {
        platform::raise(platform::InvalidArgument);
    }
    if (text.isEmpty()) {
        return 0;
    }
    const int from = start == -1 ? size(text) : start;
    if (from > size(text)) {
        return 0;
    }
    if (find.isEmpty()) {
        return from;
    }
    // The match must end at or before from.
    const int lastStart = from - size(find);
    if (lastStart < 0) {
        return 0;
    }
    return static_cast<int>(text.lastIndexOf(find, lastStart, cs)) + 1;
}

QString mid(const QString &text, int start, int length)
{
    requireStart(start);
    if (length != -1) {
        requireLength(length);
    }
    if (start > size(text)) {
        return {};
    }
    return length == -1 ? text.mid(start - 1) : text.mid(start - 1, length);
}

QString left(const QString &text, int length)
{
    requireLength(length);
    return text.left(length);
}

QString right(const QString &text, int length)
{
    requireLength(length);
    return text.right(length);
}

QString
replaceAll(const QString &text, const QString &find, const QString &with, Qt::CaseSensitivity cs)
{
    if (find.isEmpty()) {
        return text;
    }
    QString result = text;
    result.replace(find, with, cs);
    return result;
}

} // namespace core
