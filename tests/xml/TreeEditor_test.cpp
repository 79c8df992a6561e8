#include "TreePageWindow.h"
#include "xml/clsNode.h"
#include "xml/frmAddAttribute.h"

using namespace Qt::StringLiterals;

TEST_F(TreePageTest, LoadsTheDocumentWithMatchingKeys)
{
    open("<a><b x=\"1\"><c/></b><b/></a>");
    EXPECT_EQ(page.trevwContents.keysInOrder(),
              (QStringList{u"nod1"_s, u"nod2"_s, u"nod3"_s, u"nod4"_s}));
    EXPECT_EQ(page.trevwContents.dumpRows(), (QStringList{u"a"_s, u"  b"_s, u"    c"_s, u"  b"_s}));
    EXPECT_TRUE(page.trevwContents.node(u"nod1"_s).expanded);
    EXPECT_TRUE(page.Tree.TreeLoaded);
    EXPECT_EQ(page.Tree.NodeCounter, 4);
    EXPECT_TRUE(page.mnuFileSave.enabled());

    page.trevwContents.userSelect(u"nod2"_s);
    EXPECT_EQ(page.lstAttributes.rows(), QStringList{u"x"_s});
    EXPECT_FALSE(page.Tree.TreeModified) << "showing a node is no edit";
    page.lstAttributes.userSelect({0});
    EXPECT_EQ(page.txtAttributeValue.text(), u"1"_s);
    EXPECT_TRUE(page.cmdDel.enabled());
    EXPECT_FALSE(page.Tree.TreeModified);
}

TEST_F(TreePageTest, BadFilesLeaveTheTreeEmptyWithoutAWord)
{
    QByteArray hugeLine = "<a>";
    hugeLine += QByteArray(3'000'000, 'x');
    for (const QByteArray &bad : {QByteArray(),
                                  QByteArray("<a><b></a>"),
                                  QByteArray("\xff\xfe<"),
                                  QByteArray(2'000'000, '<')}) {
        SCOPED_TRACE(bad.left(20).toStdString());
        open(bad);
        EXPECT_EQ(page.trevwContents.count(), 0);
        EXPECT_FALSE(page.Tree.TreeLoaded);
    }
    bool cancelled = false;
    editor.reset(win(u"missing.xml"_s), cancelled);
    editor.load();
    EXPECT_EQ(page.trevwContents.count(), 0);
    open(hugeLine + "</a>");
    EXPECT_EQ(page.trevwContents.count(), 1);
    EXPECT_TRUE(prompts().isEmpty());
}

TEST_F(TreePageTest, EditsMarkTheCaptionOnceAndTheWriteClearsIt)
{
    open("<a><b/></a>");
    page.trevwContents.userSelect(u"nod2"_s);
    page.txtCharacters.setText(u"one"_s);
    page.txtCharacters.setText(u"two"_s);
    EXPECT_EQ(page.caption(), u"XML File Editor - *"_s);
    EXPECT_TRUE(page.Tree.TreeModified);
    editor.write();
    EXPECT_EQ(page.caption(), u"XML File Editor - "_s);
    EXPECT_FALSE(page.Tree.TreeModified);
    EXPECT_EQ(
        bytes(u"TempFiles/doc.xml"_s),
        QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a>\r\n <b>two</b>\r\n</a>\r\n"));
}

TEST_F(TreePageTest, TheResetAsksAboutUnsavedChanges)
{
    open("<a/>");
    page.trevwContents.userSelect(u"nod1"_s);
    page.txtCharacters.setText(u"changed"_s);

    host.queueAnswer(ui::Answer::Cancel);
    bool cancelled = false;
    editor.reset(win(u"other.xml"_s), cancelled);
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(page.trevwContents.count(), 1);
    EXPECT_EQ(page.Tree.TreeFile, win(u"TempFiles\\doc.xml"_s));

    host.queueAnswer(ui::Answer::Yes);
    editor.reset(win(u"other.xml"_s), cancelled);
    EXPECT_FALSE(cancelled);
    EXPECT_EQ(bytes(u"TempFiles/doc.xml"_s),
              QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a>changed</a>\r\n"));
    EXPECT_EQ(page.trevwContents.count(), 0);
    EXPECT_EQ(page.Tree.TreeFile, win(u"other.xml"_s));
    EXPECT_EQ(page.Tree.Document->RootNode().ChildNodes.Count(), 0);
    EXPECT_EQ(
        prompts(),
        (QStringList{
            u"msgbox exclamation \"Modified File\" \"The current file has been modified.\\nDo you wish to saves these changes?\" -> Cancel"_s,
            u"msgbox exclamation \"Modified File\" \"The current file has been modified.\\nDo you wish to saves these changes?\" -> Yes"_s}));
}

TEST_F(TreePageTest, AttributesAreAddedRenamedAndRemoved)
{
    open("<a k=\"v\"/>");
    page.trevwContents.userSelect(u"nod1"_s);
    page.cmdAdd.fireClick();
    auto &dialog = forms.get<xml::frmAddAttribute>();
    dialog.txtName.setText(u"bad name"_s);
    dialog.cmdOK.fireClick();
    dialog.txtName.setText(QString());
    dialog.cmdOK.fireClick();
    EXPECT_TRUE(forms.isLoaded<xml::frmAddAttribute>());
    dialog.txtName.setText(u"d:new"_s);
    dialog.txtValue.setText(u"a & b"_s);
    dialog.cmdOK.fireClick();
    EXPECT_FALSE(forms.isLoaded<xml::frmAddAttribute>());
    EXPECT_EQ(page.lstAttributes.rows(), (QStringList{u"k"_s, u"d:new"_s}));

    page.lstAttributes.userSelect({0});
    host.queueInput(u"has blank"_s);
    page.cmdRename.fireClick();
    host.queueInput(u"kk"_s);
    page.cmdRename.fireClick();
    page.lstAttributes.userSelect({1});
    page.txtAttributeValue.setText(u"<b>"_s);
    page.lstAttributes.userSelect({0});
    page.cmdDel.fireClick();
    EXPECT_FALSE(page.cmdDel.enabled());
    EXPECT_EQ(page.lstAttributes.rows(), QStringList{u"d:new"_s});

    editor.write();
    EXPECT_EQ(
        bytes(u"TempFiles/doc.xml"_s),
        QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a d:new=\"<b>\"></a>\r\n"));
    EXPECT_EQ(
        prompts(),
        (QStringList{
            u"showmodal frmAddAttribute \"Add Attribute\""_s,
            u"msgbox none \"Invalid Character\" \"Attribute names are not allowed spaces in them.\" -> OK"_s,
            u"msgbox none \"Name missing\" \"Please enter a name. The value box may be left blank,\\nhowever, the name must be supplied.\" -> OK"_s,
            u"inputbox \"Rename Attribute\" \"Please enter the new name for the attribute:\" \"k\" -> \"has blank\""_s,
            u"msgbox none \"Invalid Character\" \"No spaces are allowed to be used in the attribute's name\" -> OK"_s,
            u"inputbox \"Rename Attribute\" \"Please enter the new name for the attribute:\" \"k\" -> \"kk\""_s}));
}

TEST_F(TreePageTest, NodesAreAddedRenamedCopiedPastedAndDeleted)
{
    open("<a><b x=\"1\">t<c/></b></a>");
    page.trevwContents.userSelect(u"nod2"_s);
    page.mnuEditCopy.fireClick();
    EXPECT_TRUE(page.mnuEditPaste.enabled());
    EXPECT_EQ(page.Tree.NodeCounter, 5) << "each copied node takes a number";

    page.trevwContents.userSelect(u"nod1"_s);
    page.trevwContents.fireRightClick();
    EXPECT_EQ(page.mnuNodePopUpNew.caption(), u"&New Child Node"_s);
    page.mnuNodePopUpNew.fireClick();
    EXPECT_EQ(page.trevwContents.selectedKey(), u"nod6"_s);
    EXPECT_TRUE(page.trevwContents.labelEditRequested());
    page.trevwContents.finishLabelEdit(u"has space"_s);
    EXPECT_EQ(page.trevwContents.node(u"nod6"_s).text, u"ChildNode"_s);
    page.mnuNodePopupRename.fireClick();
    page.trevwContents.finishLabelEdit(u"New"_s);

    page.trevwContents.userSelect(u"nod6"_s);
    page.mnuEditPaste.fireClick();
    EXPECT_EQ(page.trevwContents.childKeys(u"nod6"_s), QStringList{u"nod7"_s});
    EXPECT_EQ(page.trevwContents.childKeys(u"nod7"_s), QStringList{u"nod8"_s});

    // Deleting a node with children asks first.
    page.trevwContents.userSelect(u"nod2"_s);
    host.queueAnswer(ui::Answer::No);
    page.mnuNodePopUpDelete.fireClick();
    EXPECT_TRUE(page.trevwContents.contains(u"nod2"_s));
    host.queueAnswer(ui::Answer::Yes);
    page.mnuNodePopUpDelete.fireClick();
    EXPECT_FALSE(page.trevwContents.contains(u"nod3"_s));
    EXPECT_EQ(page.Tree.SelectedNode, nullptr);

    editor.write();
    EXPECT_EQ(bytes(u"TempFiles/doc.xml"_s),
              QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a>\r\n <New>\r\n  <b "
                         "x=\"1\">t\r\n   <c></c>\r\n  </b>\r\n </New>\r\n</a>\r\n"));
    EXPECT_TRUE(prompts().contains(
        u"msgbox none \"Invalid character\" \"Node names cannot have spaces!\" -> OK"_s));
}

TEST_F(TreePageTest, AnEmptyDocumentGetsAPrimaryNode)
{
    editor.newDocument();
    EXPECT_FALSE(page.mnuFileSave.enabled());
    EXPECT_EQ(page.Tree.TreeFile, win(u"undefined.xml"_s));
    page.trevwContents.fireRightClick();
    EXPECT_EQ(page.mnuNodePopUpNew.caption(), u"&New Primary Node"_s);
    EXPECT_FALSE(page.mnuNodePopUpDelete.enabled());
    page.mnuNodePopUpNew.fireClick();
    EXPECT_EQ(page.trevwContents.keysInOrder(), QStringList{u"nod1"_s});
    page.trevwContents.userSelect(u"nod1"_s);
    page.mnuNodePopUpNew.fireClick();
    EXPECT_EQ(page.trevwContents.childKeys(u"nod1"_s), QStringList{u"nod2"_s});
    // The first node without children goes without a question, and the document with it.
    page.trevwContents.userSelect(u"nod2"_s);
    page.mnuNodePopUpDelete.fireClick();
    page.trevwContents.userSelect(u"nod1"_s);
    page.mnuNodePopUpDelete.fireClick();
    EXPECT_EQ(page.trevwContents.count(), 0);
    EXPECT_EQ(page.Tree.Document->RootNode().ChildNodes.Count(), 0);
}

TEST_F(TreePageTest, NonAsciiNamesAndTextWriteThroughTheCodePage)
{
    open("<?xml version=\"1.0\" encoding=\"utf-8\"?><Stra\xc3\x9f"
         "e v=\"\xe2\x82\xac\">\xc3\xb3\xe4\xb8\xad</Stra\xc3\x9f"
         "e>");
    EXPECT_EQ(page.trevwContents.node(u"nod1"_s).text, u"Straße"_s);
    editor.write();
    EXPECT_EQ(bytes(u"TempFiles/doc.xml"_s),
              QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Stra\xdf"
                         "e v=\"\x80\">\xf3?</Stra\xdf"
                         "e>\r\n"));
}
