#include "core/QuickSort.h"

#include "core/platform/Failure.h"

#include <cmath>

namespace core
{

namespace
{

int compare(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive);
}

// (low + high) / 2 rounded half to even, as the number conversion rounds.
int bankersMidpoint(int low, int high)
{
    return static_cast<int>(std::nearbyint((static_cast<double>(low) + high) / 2.0));
}

void sortRange(QStringList &items, int low, int high)
{
    const QString pivot = items[bankersMidpoint(low, high)];
    int i = low;
    int j = high;
    while (i <= j) {
        while (compare(items[i], pivot) < 0 && i < high) {
            ++i;
        }
        while (compare(items[j], pivot) > 0 && j > low) {
            --j;
        }
        if (i <= j) {
            items.swapItemsAt(i, j);
            ++i;
            --j;
        }
    }
    if (low < j) {
        sortRange(items, low, j);
    }
    if (i < high) {
        sortRange(items, i, high);
    }
}

} // namespace

void QuickSort(QStringList &items, int low, int high)
{
    if (low > high) {
        return;
    }
    if (low < 0 || high >= items.size()) {
        platform::raise(platform::SubscriptOutOfRange);
    }
    sortRange(items, low, high);
}

QStringList RemD2(const QStringList &sorted)
{
    QStringList kept;
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        if (i == 0 || compare(sorted[i], sorted[i - 1]) != 0) {
            kept << sorted[i];
        }
    }
    return kept;
}

} // namespace core
