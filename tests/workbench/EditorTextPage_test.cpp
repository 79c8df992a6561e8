#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/ScriptedHost.h"
#include "workbench/frmEditor.h"
#include "xml/EditorTabs.h"
#include "xml/XmlWindows.h"
#include "xml/dlgSearch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class EditorTextPageTest : public testing::Test
{
protected:
    QTemporaryDir root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    ui::ScriptedHost host;
    core::Services services{map, host, QStringLiteral(BV_BIN_DIR)};
    core::Session session{services, host, map};
    ui::Forms forms{host};
    std::unique_ptr<workbench::frmEditor> editor;

    EditorTextPageTest()
    {
        session.appFolder = platform::toWindowsPath(root.path());
        QDir(root.path()).mkpath(u"TempFiles"_s);
        xml::defineXmlWindows(session, forms);
        editor = std::make_unique<workbench::frmEditor>(session, forms);
    }

    void put(const QString &rel, const QByteArray &bytes) const
    {
        QFile file(root.filePath(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void showPage(int page)
    {
        editor->SSTab1.setTab(1 - page);
        editor->SSTab1.setTab(page);
    }
};

TEST_F(EditorTextPageTest, TheTabSwitchShowsWhichEditorCounts)
{
    struct Row {
        int page;
        bool defaultTree;
        int choice;
    };

    const Row rows[] = {{0, false, 0},
                        {0, false, 1},
                        {0, true, 1},
                        {0, true, 0},
                        {0, false, 2},
                        {0, true, 2},
                        {1, true, 0},
                        {1, true, 2},
                        {1, false, 2},
                        {1, false, 0},
                        {1, false, 1},
                        {1, true, 1}};
    editor->Tree.TreeSynced = true;
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message() << "page " << row.page << " tree " << row.defaultTree
                                        << " choice " << row.choice);
        session.DefaultEditorIsTree = row.defaultTree;
        session.EditorChoice = row.choice;
        showPage(row.page);
        const xml::EditorTabView view = xml::editorTabView(row.page, row.defaultTree, row.choice);
        const ui::Frame &frame = row.page == 0 ? editor->Frame1 : editor->Frame2;
        EXPECT_EQ(editor->Frame1.visible(), row.page == 0);
        EXPECT_EQ(editor->Frame2.visible(), row.page == 1);
        EXPECT_EQ(frame.caption(), view.frameCaption);
        EXPECT_EQ(frame.bold(), view.warning);
        EXPECT_EQ(frame.foreColor(), view.warning ? 255 : 0);
        EXPECT_EQ(editor->mnuFiles.visible(), !view.treeMenus);
        EXPECT_EQ(editor->mnuFile.visible(), view.treeMenus);
        EXPECT_EQ(editor->mnuNodePopUp.visible(), view.treeMenus);
        EXPECT_TRUE(editor->mnuSearch.visible());
    }
}

TEST_F(EditorTextPageTest, TheTreePageReadsTheWorkFileOnceAfterAnOpen)
{
    put(u"TempFiles/doc.xml"_s, "<a><b/></a>");
    editor->TempStem = session.tempFiles() + u"\\doc."_s;
    showPage(1);
    EXPECT_EQ(editor->trevwContents.count(), 2);
    EXPECT_TRUE(editor->Tree.TreeSynced);

    put(u"TempFiles/doc.xml"_s, "<a><b/><c/></a>");
    showPage(0);
    showPage(1);
    EXPECT_EQ(editor->trevwContents.count(), 2);
    editor->Tree.TreeSynced = false;
    showPage(0);
    showPage(1);
    EXPECT_EQ(editor->trevwContents.count(), 3);
}

TEST_F(EditorTextPageTest, HighlightTogglesAndKeepsTheText)
{
    editor->RichTextBox1.setText(u"<a x=\"1\">t</a>\n<b/>"_s);
    editor->Command1.fireClick();
    EXPECT_EQ(editor->Command1.caption(), u"Unhighlight XML"_s);
    EXPECT_TRUE(editor->RichTextBox1.textRtf().startsWith(u"{\\richtextbox1"_s));
    EXPECT_TRUE(editor->RichTextBox1.text().startsWith(u"<a x=\"1\">t</a>\r\n<b/>"_s));
    EXPECT_FALSE(editor->RichTextBox1.runs().isEmpty());
    editor->Command1.fireClick();
    EXPECT_EQ(editor->Command1.caption(), u"Highlight XML"_s);
    EXPECT_TRUE(editor->RichTextBox1.textRtf().isEmpty());
    EXPECT_TRUE(editor->RichTextBox1.runs().isEmpty());

    editor->RichTextBox1.setText(QString());
    editor->Command1.fireClick();
    EXPECT_EQ(host.transcript().last(),
              u"msgbox none \"Brakevan Max\" \"No text selected\" -> OK"_s);
}

TEST_F(EditorTextPageTest, FindOpensTheSearchOnTheTextPage)
{
    editor->RichTextBox1.setText(u"one two one"_s);
    editor->mnuFind.fireClick();
    auto &search = forms.get<xml::dlgSearch>();
    EXPECT_TRUE(host.isShown(search));
    search.Text2.setText(u"one"_s);
    search.Text3.setText(u"1"_s);
    search.Command4.fireClick();
    search.Command5.fireClick();
    EXPECT_EQ(editor->RichTextBox1.text(), u"one two 1"_s);
    search.OKButton.fireClick();
    EXPECT_FALSE(host.isShown(search));
}
