#pragma once
// The growth rules of the lists indexed by row: made with room for a first upper bound, grown by a
// step when a row passes the bound, and cut to the rows used at the end.

#include "core/platform/Failure.h"

#include <QStringList>

namespace routes
{

// Empties the list and gives it room for rows 0 to upperBound.
inline void makeRows(QStringList &rows, int upperBound)
{
    rows = QStringList(upperBound + 1);
}

// Grows the list by step rows when row passes its upper bound.
inline void growRows(QStringList &rows, int row, int step)
{
    if (row > rows.size() - 1) {
        rows.resize(rows.size() + step);
    }
}

// Keeps rows 0 to upperBound; a bound below 0 leaves the list as it is and raises failure 9, as
// cutting a list to no rows at all does.
inline void cutRows(QStringList &rows, int upperBound)
{
    if (upperBound < 0) {
        platform::raise(platform::SubscriptOutOfRange);
    }
    rows.resize(upperBound + 1);
}

// The row of a list, or failure 9 outside it.
inline const QString &rowAt(const QStringList &rows, int row)
{
    if (row < 0 || row >= rows.size()) {
        platform::raise(platform::SubscriptOutOfRange);
    }
    return rows[row];
}

} // namespace routes
