#include "core/QuickSort.h"
#include "core/platform/Failure.h"

#include <QRandomGenerator>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace core;

namespace
{

bool sortedCaseBlind(const QStringList &items)
{
    return std::is_sorted(items.begin(), items.end(), [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
}

} // namespace

TEST(QuickSort, SortsCaseBlindWithinTheBoundsOnly)
{
    QStringList items{
        u"zeta"_s, u"Delta"_s, u"alpha"_s, u"Charlie"_s, u"bravo"_s, u"ALPHA"_s, u"omega"_s};
    QuickSort(items, 1, 5);
    EXPECT_EQ(items.first(), u"zeta"_s);
    EXPECT_EQ(items.last(), u"omega"_s);
    EXPECT_TRUE(sortedCaseBlind(items.mid(1, 5)));
    EXPECT_EQ(items.mid(3, 3), (QStringList{u"bravo"_s, u"Charlie"_s, u"Delta"_s}));
}

TEST(QuickSort, SortsAnyOrderOfManyDuplicates)
{
    QRandomGenerator random(47);
    for (int round = 0; round < 20; ++round) {
        QStringList items;
        const int count = random.bounded(1, 60);
        for (int i = 0; i < count; ++i) {
            const QString word = QString(QChar(u'a' + random.bounded(5)));
            items << (random.bounded(2) ? word.toUpper() : word);
        }
        QStringList sorted = items;
        QuickSort(sorted, 0, static_cast<int>(sorted.size()) - 1);
        SCOPED_TRACE(items.join(u',').toStdString());
        EXPECT_TRUE(sortedCaseBlind(sorted));
        std::sort(items.begin(), items.end());
        std::sort(sorted.begin(), sorted.end());
        EXPECT_EQ(sorted, items); // nothing lost or doubled
    }
}

TEST(QuickSort, EmptyRangesAreFineAndBoundsOutsideRaiseNine)
{
    QStringList none;
    QuickSort(none, 0, -1);
    QStringList two{u"b"_s, u"a"_s};
    try {
        QuickSort(two, 0, 2);
        FAIL() << "no failure";
    } catch (const platform::Failure &failure) {
        EXPECT_EQ(failure.number(), 9);
    }
}

TEST(RemD2, LeavesOutNeighboursEqualCaseBlind)
{
    EXPECT_EQ(RemD2({u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"b"_s, u"c"_s}),
              (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(RemD2({u"a"_s, u"b"_s, u"a"_s}), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    EXPECT_TRUE(RemD2({}).isEmpty());
}
