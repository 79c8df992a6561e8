#pragma once
// The 1-based text primitives the scanning code is written in: positions count from 1, 0 means
// not found, and a start below 1 or a negative length raises failure 5.

#include <QString>

namespace core
{

// The position of find in text at or after start; 0 when absent or when start is beyond the text.
// An empty find gives start while start <= length + 1.
int instr(int start,
          const QString &text,
          const QString &find,
          Qt::CaseSensitivity cs = Qt::CaseSensitive);
int instr(const QString &text, const QString &find, Qt::CaseSensitivity cs = Qt::CaseSensitive);

// The last position of find that ends at or before start (-1: the end of the text).
int instrRev(const QString &text,
             const QString &find,
             int start = -1,
             Qt::CaseSensitivity cs = Qt::CaseSensitive);

// length -1: to the end. A start beyond the text gives empty text.
QString mid(const QString &text, int start, int length = -1);
QString left(const QString &text, int length);
QString right(const QString &text, int length);

// Every occurrence, left to right, without rescanning what was put in; an empty find changes
// nothing.
QString replaceAll(const QString &text,
                   const QString &find,
                   const QString &with,
                   Qt::CaseSensitivity cs = Qt::CaseSensitive);

} // namespace core
