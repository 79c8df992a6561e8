// The tree page of the main window: its steps are the tree editor's, which holds the page's
// controls.

#include "workbench/frmEditor.h"
#include "xml/TidyXmlFile.h"
#include "xml/TreeEditor.h"
#include "xml/TreeSearch.h"

namespace workbench
{

void frmEditor::connectTreePage()
{
    const xml::TreePage page{*this,
                             trevwContents,
                             lstAttributes,
                             txtAttributeValue,
                             txtCharacters,
                             cmdAdd,
                             cmdDel,
                             cmdRename,
                             mnuFileSave,
                             mnuFileSaveAs,
                             mnuNodePopUp,
                             mnuNodePopUpNew,
                             mnuNodePopupRename,
                             mnuNodePopUpDelete,
                             mnuEditCopy,
                             mnuEditPaste};
    const xml::TreeSearchPage search{
        Text2, Text3, Check1, Command2, Command3, Command4, Command5, Command6};
    Tree.editor = std::make_unique<xml::TreeEditor>(m_session, m_forms, Tree, page);
    Tree.search = std::make_unique<xml::TreeSearch>(m_session, m_forms, Tree, page, search);
    Tree.editor->connect();
    Tree.search->connect();
}

void frmEditor::treeReset(const QString &path, bool &cancelled)
{
    Tree.editor->reset(path, cancelled);
}

void frmEditor::newTreeDocument()
{
    Tree.editor->newDocument();
}

void frmEditor::loadTreeDocument()
{
    Tree.editor->load();
}

void frmEditor::WriteTreeFile()
{
    Tree.editor->write();
}

void frmEditor::tidyWorkXml()
{
    xml::TidyXmlFile(m_session, TempStem + QStringLiteral("xml"));
}

void frmEditor::SetTreeModified(bool modified)
{
    Tree.editor->setModified(modified);
}

} // namespace workbench
