// The control models' rules that windows rely on: sorted lists, selection that follows removals,
// trees that drop whole subtrees, events fired as the original controls fire them.

#include "core/platform/Failure.h"
#include "ui/CheckBox.h"
#include "ui/ListBox.h"
#include "ui/OptionButton.h"
#include "ui/RichText.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/Window.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ListBox, SortedListInsertsCaseBlindInOrder)
{
    ui::ListBox list;
    list.setSorted(true);
    for (const QString &row : {u"beta"_s, u"Alpha"_s, u"gamma"_s, u"ALPHA2"_s}) {
        list.addItem(row);
    }
    EXPECT_EQ(list.rows(), (QStringList{u"Alpha"_s, u"ALPHA2"_s, u"beta"_s, u"gamma"_s}));
}

TEST(ListBox, CurrentRowFollowsRemovalsAndClickFiresOnlyOnMove)
{
    ui::ListBox list;
    int clicks = 0;
    list.onClick([&] { ++clicks; });
    list.setRows({u"a"_s, u"b"_s, u"c"_s});
    list.setListIndex(2);
    list.setListIndex(2);
    EXPECT_EQ(clicks, 1);
    list.removeItem(0);
    EXPECT_EQ(list.listIndex(), 1);
    list.removeItem(1);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

TEST(ListBox, OutOfRangeRowsRaiseTheSubscriptFailure)
{
    ui::ListBox list;
    list.addItem(u"only"_s);
    EXPECT_EQ(list.list(1), QString()); // one past the end reads empty
    try {
        list.removeItem(3);
        FAIL() << "no failure";
    } catch (const platform::Failure &failure) {
        EXPECT_EQ(failure.number(), 9);
    }
}

TEST(TreeView, RemovingANodeDropsItsSubtreeAndSelection)
{
    ui::TreeView tree;
    tree.add({}, u"nod1"_s, u"root"_s);
    tree.add(u"nod1"_s, u"nod2"_s, u"a"_s);
    tree.add(u"nod2"_s, u"nod3"_s, u"a1"_s);
    tree.add(u"nod1"_s, u"nod4"_s, u"b"_s);
    tree.select(u"nod3"_s);
    EXPECT_EQ(tree.keysInOrder(), (QStringList{u"nod1"_s, u"nod2"_s, u"nod3"_s, u"nod4"_s}));
    tree.remove(u"nod2"_s);
    EXPECT_EQ(tree.keysInOrder(), (QStringList{u"nod1"_s, u"nod4"_s}));
    EXPECT_TRUE(tree.selectedKey().isEmpty());
    EXPECT_THROW(tree.add({}, u"nod1"_s, u"again"_s), platform::Failure);
}

TEST(TreeView, LabelEditCanBeCancelledByTheHandler)
{
    ui::TreeView tree;
    tree.add({}, u"nod1"_s, u"Name"_s);
    tree.onAfterLabelEdit(
        [](const QString &, QString &text, bool &cancel) { cancel = text.contains(u' '); });
    tree.select(u"nod1"_s);
    tree.finishLabelEdit(u"has blank"_s);
    EXPECT_EQ(tree.node(u"nod1"_s).text, u"Name"_s);
    tree.finishLabelEdit(u"NoBlank"_s);
    EXPECT_EQ(tree.node(u"nod1"_s).text, u"NoBlank"_s);
}

TEST(Events, ValueChangesFireAsTheOriginalControlsDo)
{
    ui::Window window(u"frmTest"_s);
    ui::OptionButton first;
    ui::OptionButton second;
    ui::CheckBox check;
    ui::TextBox text;
    window.add(u"Option1(0)"_s, first);
    window.add(u"Option1(1)"_s, second);
    int optionClicks = 0;
    int checkClicks = 0;
    int changes = 0;
    second.onClick([&] { ++optionClicks; });
    check.onClick([&] { ++checkClicks; });
    text.onChange([&] { ++changes; });

    first.setValue(true);
    second.setValue(true);
    EXPECT_FALSE(first.value());
    EXPECT_EQ(optionClicks, 1);

    check.setValue(1);
    check.setValue(1);
    EXPECT_EQ(checkClicks, 1);

    text.setText(u"a"_s);
    text.setText(u"a"_s);
    EXPECT_EQ(changes, 1);
}

TEST(RichText, FindIsCaseBlindUnlessAskedAndHonoursWholeWords)
{
    ui::RichText box;
    box.setText(u"Track trackside TRACK"_s);
    EXPECT_EQ(box.find(u"track"_s), 0);
    EXPECT_EQ(box.find(u"track"_s, 1), 6);
    EXPECT_EQ(box.find(u"track"_s, 1, -1, ui::RichText::WholeWord), 16);
    EXPECT_EQ(box.find(u"track"_s, 1, -1, ui::RichText::MatchCase), 6);
    EXPECT_EQ(box.find(u"track"_s, 7, -1, ui::RichText::MatchCase), -1);
    EXPECT_EQ(box.selStart(), 6); // a miss leaves the selection of the last hit
}
