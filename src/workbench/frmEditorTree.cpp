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
    const xml::TreePage page = xml::treePageOf(*this, *this);
    const xml::TreeSearchPage search = xml::treeSearchPageOf(*this);
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
