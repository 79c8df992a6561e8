#pragma once
// The program's in-place sort of text lists: ascending, case-blind, with its own pivot rule, so
// that equal-but-differently-cased entries end up where the program always put them.

#include <QStringList>

namespace core
{

// Sorts items[low..high] (inclusive); out-of-range bounds raise failure 9.
void QuickSort(QStringList &items, int low, int high);

// A copy of a sorted list leaving out each item equal, case-blind, to the one before it.
QStringList RemD2(const QStringList &sorted);

} // namespace core
