#include "TreePageWindow.h"
#include "ui/RichText.h"
#include "xml/clsNode.h"
#include "xml/dlgFind.h"
#include "xml/dlgSearch.h"

using namespace Qt::StringLiterals;

namespace
{

// The question at each hit, answered by a list of clicks: true accepts the hit.
class AnsweringFind : public xml::dlgFind
{
public:
    AnsweringFind(ui::Forms &forms, std::deque<bool> &answers)
        : dlgFind(forms)
        , m_answers(answers)
    {
    }

    void Form_Activate() override
    {
        const bool accept = !m_answers.empty() && m_answers.front();
        if (!m_answers.empty()) {
            m_answers.pop_front();
        }
        (accept ? OKButton : FindButton).fireClick();
    }

private:
    std::deque<bool> &m_answers;
};

} // namespace

class TreeSearchTest : public TreePageTest
{
protected:
    std::deque<bool> answers;

    TreeSearchTest()
    {
        forms.define<xml::dlgFind>(
            [this] { return std::make_unique<AnsweringFind>(forms, answers); });
        open("<Records><Record>trackside</Record><RecordSet>a track "
             "b</RecordSet><x>Track</x></Records>");
    }

    QStringList boldRows() const
    {
        QStringList out;
        for (const QString &key : page.trevwContents.keysInOrder()) {
            if (page.trevwContents.node(key).bold) {
                out.append(key);
            }
        }
        return out;
    }

    int questions() const { return int(host.transcript().filter(u"showmodal dlgFind"_s).size()); }
};

TEST_F(TreeSearchTest, FindStopsAtTheAcceptedHitAndGoesOnFromThere)
{
    page.Text2.setText(u"record"_s);
    answers = {false, true};
    page.Command2.fireClick();
    EXPECT_EQ(questions(), 2);
    EXPECT_EQ(page.trevwContents.selectedKey(), u"nod2"_s);
    EXPECT_EQ(boldRows(), (QStringList{u"nod2"_s}));
    EXPECT_EQ(page.Tree.TreeSearchIndex, 3);

    answers = {false};
    page.Command2.fireClick();
    EXPECT_EQ(host.transcript().last(), u"msgbox none \"Brakevan Max\" \"Not found\" -> OK"_s);
    // A new term starts over at the first node.
    page.Text2.setText(u"records"_s);
    EXPECT_EQ(page.Tree.TreeSearchIndex, 1);
}

TEST_F(TreeSearchTest, WholeWordsAndFindAll)
{
    page.Check1.setValue(1);
    page.Text2.setText(u"record"_s);
    page.Command3.fireClick();
    // Nothing follows the term at the end of a name.
    EXPECT_EQ(boldRows(), (QStringList{u"nod2"_s}));
    page.Check1.setValue(0);
    page.Command3.fireClick();
    EXPECT_EQ(boldRows(), (QStringList{u"nod1"_s, u"nod2"_s, u"nod3"_s}));
    EXPECT_EQ(questions(), 0);

    // In the elements' text, "track" stands alone only in the second record; the hit at the
    // end of a text has nothing after it.
    page.Check1.setValue(1);
    page.Text2.setText(u"TRACK"_s);
    answers = {false, false};
    page.Command4.fireClick();
    EXPECT_EQ(questions(), 2);
    page.Text2.setText(u"b"_s);
    answers = {true};
    page.Command4.fireClick();
    EXPECT_EQ(page.trevwContents.selectedKey(), u"nod3"_s);
}

TEST_F(TreeSearchTest, ReplaceWorksOnTheElementsText)
{
    page.Text2.setText(u"TRACK"_s);
    page.Command5.fireClick();
    EXPECT_EQ(
        host.transcript().last(),
        u"msgbox none \"Brakevan Max\" \"You have not entered anything in the Replace box?\" -> OK"_s);

    page.Text3.setText(u"rail"_s);
    page.trevwContents.userSelect(u"nod2"_s);
    page.Command5.fireClick();
    EXPECT_EQ(page.Tree.SelectedNode->NodeCharacters, u"railside"_s);
    EXPECT_TRUE(page.Tree.TreeModified);

    page.Command6.fireClick();
    const xml::clsNode &top = page.Tree.Document->RootNode().ChildNodes.Item(1);
    EXPECT_EQ(top.ChildNodes.Item(2).NodeCharacters, u"a rail b"_s);
    EXPECT_EQ(top.ChildNodes.Item(3).NodeCharacters, u"rail"_s);
}

TEST_F(TreeSearchTest, TooManyNodesForTheSearch)
{
    QByteArray big = "<a>";
    for (int i = 1; i < xml::TreeSearch::MaxItems - 1; ++i) {
        big += "<b/>";
    }
    open(big + "</a>");
    ASSERT_EQ(page.trevwContents.count(), xml::TreeSearch::MaxItems - 1);
    page.Text2.setText(u"zzz"_s);
    page.Command3.fireClick();
    EXPECT_EQ(host.transcript().last(), u"msgbox none \"Brakevan Max\" \"Not found\" -> OK"_s);

    open(big + "<b/></a>");
    page.Command3.fireClick();
    EXPECT_EQ(
        host.transcript().last(),
        u"msgbox exclamation \"Brakevan Max\" \"Unfortunately, this file is too long for this Search to work.\\nPlease open in the Brakevan editor and run Search there.\" -> OK"_s);
}

TEST_F(XmlFixture, TextSearchFindsReplacesAndReplacesAll)
{
    ui::RichText box;
    box.setText(u"cat concat cat Cat"_s);
    auto &dialog = forms.get<xml::dlgSearch>();
    dialog.searchIn(box);
    dialog.Text2.setText(u"cat"_s);
    dialog.Command4.fireClick();
    EXPECT_EQ(dialog.foundAt(), 0);
    dialog.Command2.fireClick();
    EXPECT_EQ(dialog.foundAt(), 7);
    dialog.Check1.setValue(1);
    dialog.Command2.fireClick();
    EXPECT_EQ(dialog.foundAt(), 11);

    dialog.Check1.setValue(0);
    dialog.Text3.setText(u"dog"_s);
    dialog.Command4.fireClick();
    dialog.Command6.fireClick();
    // A hit at the very start is not replaced, and the search goes on after each replacement.
    EXPECT_EQ(box.text(), u"cat condog dog dog"_s);
    EXPECT_EQ(dialog.foundAt(), -1);

    dialog.Command1.fireClick();
    EXPECT_TRUE(dialog.Text2.text().isEmpty());
    EXPECT_TRUE(dialog.Text3.text().isEmpty());
}
