#pragma once
// The tree page's editor: loads the document into the screen tree, shows the selected element's
// attributes and text, edits names, attributes and text, adds, copies, pastes and deletes nodes,
// marks the window's caption while there are unsaved changes, and writes the document back.

#include "xml/TreePage.h"

#include <QString>

namespace core
{
struct Session;
}

namespace ui
{
class Forms;
}

namespace xml
{

class clsNode;
struct TreeState;

class TreeEditor
{
public:
    TreeEditor(core::Session &session, ui::Forms &forms, TreeState &state, const TreePage &page);

    // Hands the page's events to the handlers below.
    void connect();

    // Asks about unsaved changes (Cancel sets cancelled and changes nothing), then empties the
    // document and the screen tree and takes the path as the file to read and write.
    void reset(const QString &path, bool &cancelled);
    // The reset on the program's "undefined.xml"; nothing to save yet.
    void newDocument();
    // Reads the tree file into the document and the screen tree; a file that does not parse
    // leaves the tree empty, without a word.
    void load();
    // Writes the document to the tree file, unescaped, each element at the column of its depth.
    void write();
    void setModified(bool modified);

    void trevwContents_NodeClick(const QString &key);
    void trevwContents_AfterLabelEdit(const QString &key, QString &text, bool &cancel);
    void trevwContents_RightClick();
    void lstAttributes_Click();
    void txtAttributeValue_Change();
    void txtCharacters_Change();
    void cmdAdd_Click();
    void cmdDel_Click();
    void cmdRename_Click();
    void mnuNodePopUpNew_Click();
    void mnuNodePopupRename_Click();
    void mnuNodePopUpDelete_Click();
    void mnuEditCopy_Click();
    void mnuEditPaste_Click();

private:
    clsNode &anchor() const;
    void newPrimaryNode();
    void newChildNode();
    // Adds an attribute that the add dialog accepted to the selected element.
    void addAttribute(const QString &name, const QString &value);
    void message(const QString &text, const QString &title) const;

    core::Session &m_session;
    ui::Forms &m_forms;
    TreeState &m_state;
    TreePage m_page;
};

} // namespace xml
