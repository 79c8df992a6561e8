// The text page and the tab switch of the main window.

#include "core/TextPrimitives.h"
#include "core/Traps.h"
#include "workbench/frmEditor.h"
#include "xml/CheckRoutesXml.h"
#include "xml/EditorTabs.h"
#include "xml/Highlight.h"
#include "xml/dlgSearch.h"

using namespace Qt::StringLiterals;

namespace workbench
{

namespace
{

// The rich text box gives its text with CR LF after each paragraph; a text put in with bare line
// feeds is read back that way too.
QString paragraphs(const QString &text)
{
    return core::replaceAll(core::replaceAll(text, u"\r\n"_s, u"\n"_s), u"\n"_s, u"\r\n"_s);
}

} // namespace

void frmEditor::Command1_Click()
{
    if (Command1.caption() != u"Highlight XML"_s) {
        Command1.setCaption(u"Highlight XML"_s);
        RichTextBox1.setText(RichTextBox1.text());
        return;
    }
    Command1.setCaption(u"Unhighlight XML"_s);
    RichTextBox1.setSelection(0, int(RichTextBox1.text().size()));
    const QString selected = RichTextBox1.selText();
    if (selected.isEmpty()) {
        host().msgBox(u"No text selected"_s, ui::Buttons::OK, ui::Icon::None, host().appTitle());
        return;
    }
    RichTextBox1.setTextRtf(xml::colorhtml(paragraphs(selected)));
    xml::correctHighlight(RichTextBox1);
}

void frmEditor::mnuFind_Click()
{
    m_forms.get<xml::dlgSearch>().searchIn(RichTextBox1);
    m_forms.show<xml::dlgSearch>();
}

void frmEditor::SSTab1_Click()
{
    const int page = SSTab1.tab();
    Frame1.setVisible(page == 0);
    Frame2.setVisible(page != 0);
    const xml::EditorTabView view =
        xml::editorTabView(page, m_session.DefaultEditorIsTree, m_session.EditorChoice);
    ui::Frame &frame = page == 0 ? Frame1 : Frame2;
    frame.setCaption(view.frameCaption);
    frame.setBold(view.warning);
    frame.setForeColor(view.warning ? xml::WarningColor : 0);
    mnuFiles.setVisible(!view.treeMenus);
    mnuFile.setVisible(view.treeMenus);
    mnuNodePopUp.setVisible(view.treeMenus);
    mnuSearch.setVisible(true);
    if (page == 0 || Tree.TreeSynced) {
        return;
    }
    Tree.newDocument();
    if (!TempStem.isEmpty()) {
        Tree.TreeFile = TempStem + u"xml"_s;
    }
    if (Tree.TreeFile.isEmpty()) {
        return;
    }
    loadTreeDocument();
    Tree.TreeSynced = true;
}

void frmEditor::mnuCheckXML_Click()
{
    core::trapped(
        host(), u"mnuCheckXML_Click"_s, [&] { xml::CheckRoutesXml(m_session, m_bridge); });
}

} // namespace workbench
