#include "xml/TreeEditor.h"

#include "core/Services.h"
#include "core/Session.h"
#include "core/Traps.h"
#include "core/platform/Cp1252.h"
#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "xml/NodeWalks.h"
#include "xml/TreeState.h"
#include "xml/TreeWriter.h"
#include "xml/frmAddAttribute.h"

using namespace Qt::StringLiterals;

namespace xml
{

TreeEditor::TreeEditor(core::Session &session,
                       ui::Forms &forms,
                       TreeState &state,
                       const TreePage &page)
    : m_session(session)
    , m_forms(forms)
    , m_state(state)
    , m_page(page)
{
}

void TreeEditor::connect()
{
    m_page.trevwContents.onNodeClick([this](const QString &key) { trevwContents_NodeClick(key); });
    m_page.trevwContents.onAfterLabelEdit([this](const QString &key, QString &text, bool &cancel) {
        trevwContents_AfterLabelEdit(key, text, cancel);
    });
    m_page.trevwContents.onRightClick([this] { trevwContents_RightClick(); });
    m_page.lstAttributes.onClick([this] { lstAttributes_Click(); });
    m_page.txtAttributeValue.onChange([this] { txtAttributeValue_Change(); });
    m_page.txtCharacters.onChange([this] { txtCharacters_Change(); });
    m_page.cmdAdd.onClick([this] { cmdAdd_Click(); });
    m_page.cmdDel.onClick([this] { cmdDel_Click(); });
    m_page.cmdRename.onClick([this] { cmdRename_Click(); });
    m_page.mnuNodePopUpNew.onClick([this] { mnuNodePopUpNew_Click(); });
    m_page.mnuNodePopupRename.onClick([this] { mnuNodePopupRename_Click(); });
    m_page.mnuNodePopUpDelete.onClick([this] { mnuNodePopUpDelete_Click(); });
    m_page.mnuEditCopy.onClick([this] { mnuEditCopy_Click(); });
    m_page.mnuEditPaste.onClick([this] { mnuEditPaste_Click(); });
}

clsNode &TreeEditor::anchor() const
{
    return m_state.Document->RootNode();
}

void TreeEditor::message(const QString &text, const QString &title) const
{
    m_session.host.msgBox(text, ui::Buttons::OK, ui::Icon::None, title);
}

void TreeEditor::reset(const QString &path, bool &cancelled)
{
    cancelled = false;
    if (m_state.TreeModified) {
        const ui::Answer answer = m_session.host.msgBox(
            u"The current file has been modified.\r\nDo you wish to saves these changes?"_s,
            ui::Buttons::YesNoCancel,
            ui::Icon::Exclamation,
            u"Modified File"_s);
        if (answer == ui::Answer::Cancel) {
            cancelled = true;
            return;
        }
        if (answer == ui::Answer::Yes) {
            write();
        }
    }
    m_state.TreeModified = false;
    m_state.TreeLoaded = false;
    m_page.trevwContents.clear();
    m_page.window.setCaption(u"XML File Editor - "_s);
    m_state.TreeFile = path;
    m_state.NodeCounter = 0;
    m_state.newDocument();
}

void TreeEditor::newDocument()
{
    bool cancelled = false;
    reset(m_session.appFolder + u"\\undefined.xml"_s, cancelled);
    if (cancelled) {
        return;
    }
    m_page.mnuFileSave.setEnabled(false);
    m_page.mnuFileSaveAs.setEnabled(false);
}

void TreeEditor::load()
{
    core::silently([&] {
        m_state.Document->load(m_session.services.ReadBinary(m_state.TreeFile));
        m_state.NodeCounter = 1;
        m_page.trevwContents.clear();
        const clsNode &first = anchor().ChildNodes.Item(1);
        fillScreenTree(m_page.trevwContents, first, m_state.NodeCounter);
        m_page.trevwContents.setExpanded(first.NodeKey, true);
        m_state.TreeLoaded = true;
        m_page.mnuFileSave.setEnabled(true);
        m_page.mnuFileSaveAs.setEnabled(true);
    });
}

void TreeEditor::write()
{
    core::silently([&] {
        m_session.services.WriteBinary(m_state.TreeFile,
                                       platform::Cp1252::encode(treeText(anchor())));
        // With no element the file holds its declaration alone, and the document stays unsaved.
        if (anchor().ChildNodes.Count() == 0) {
            return;
        }
        m_state.TreeLoaded = true;
        setModified(false);
    });
}

void TreeEditor::setModified(bool modified)
{
    const QString caption = m_page.window.caption();
    const bool marked = caption.endsWith(QLatin1Char('*'));
    if (modified && !marked) {
        m_page.window.setCaption(caption + QLatin1Char('*'));
    } else if (!modified && marked) {
        m_page.window.setCaption(caption.chopped(1));
    }
    m_page.mnuFileSave.setEnabled(m_state.TreeLoaded);
    m_page.mnuFileSaveAs.setEnabled(m_state.TreeLoaded);
    m_state.TreeModified = modified;
}

void TreeEditor::trevwContents_NodeClick(const QString &key)
{
    m_page.lstAttributes.clear();
    m_page.cmdDel.setEnabled(false);
    m_page.cmdRename.setEnabled(false);
    m_page.txtAttributeValue.setEnabled(false);
    m_page.txtAttributeValue.setText(QString());
    m_state.SelectedNode = FindNodeByKey(anchor(), key);
    if (!m_state.SelectedNode) {
        return;
    }
    m_state.ShowingNode = true;
    for (const clsNodeAttribute &attribute : m_state.SelectedNode->NodeAttributes) {
        m_page.lstAttributes.addItem(attribute.AttribName);
    }
    m_page.txtCharacters.setText(m_state.SelectedNode->NodeCharacters);
    m_state.ShowingNode = false;
    m_page.mnuEditCopy.setEnabled(true);
}

void TreeEditor::trevwContents_AfterLabelEdit(const QString &key, QString &text, bool &cancel)
{
    if (text.contains(QLatin1Char(' '))) {
        message(u"Node names cannot have spaces!"_s, u"Invalid character"_s);
        cancel = true;
        return;
    }
    clsNode *node = FindNodeByKey(anchor(), key);
    if (!node) {
        return;
    }
    node->NodeName = text;
    setModified(true);
}

void TreeEditor::trevwContents_RightClick()
{
    const bool empty = anchor().ChildNodes.Count() == 0;
    m_page.mnuNodePopUpNew.setCaption(empty ? u"&New Primary Node"_s : u"&New Child Node"_s);
    m_page.mnuNodePopupRename.setEnabled(!empty);
    m_page.mnuNodePopUpDelete.setEnabled(!empty);
    m_page.mnuNodePopUp.requestPopup();
}

void TreeEditor::lstAttributes_Click()
{
    const int row = m_page.lstAttributes.listIndex();
    if (row < 0 || !m_state.SelectedNode) {
        return;
    }
    m_state.ShowingNode = true;
    m_page.txtAttributeValue.setText(
        m_state.SelectedNode->NodeAttributes.Item(row + 1).AttribValue);
    m_state.ShowingNode = false;
    m_page.cmdDel.setEnabled(true);
    m_page.cmdRename.setEnabled(true);
    m_page.txtAttributeValue.setEnabled(true);
}

void TreeEditor::txtAttributeValue_Change()
{
    const int row = m_page.lstAttributes.listIndex();
    if (row < 0 || !m_state.SelectedNode || row >= m_state.SelectedNode->NodeAttributes.Count()) {
        return;
    }
    m_state.SelectedNode->NodeAttributes.Item(row + 1).AttribValue =
        m_page.txtAttributeValue.text();
    if (!m_state.ShowingNode) {
        setModified(true);
    }
}

void TreeEditor::txtCharacters_Change()
{
    if (!m_state.SelectedNode) {
        return;
    }
    m_state.SelectedNode->NodeCharacters = m_page.txtCharacters.text();
    if (!m_state.ShowingNode) {
        setModified(true);
    }
}

void TreeEditor::cmdAdd_Click()
{
    if (!m_state.SelectedNode) {
        return;
    }
    frmAddAttribute &dialog = m_forms.get<frmAddAttribute>();
    dialog.onAccepted(
        [this](const QString &name, const QString &value) { addAttribute(name, value); });
    m_forms.show<frmAddAttribute>(true);
}

void TreeEditor::addAttribute(const QString &name, const QString &value)
{
    if (!m_state.SelectedNode) {
        return;
    }
    m_state.SelectedNode->NodeAttributes.Add(name, value);
    m_page.lstAttributes.addItem(name);
    setModified(true);
}

void TreeEditor::cmdDel_Click()
{
    const int row = m_page.lstAttributes.listIndex();
    if (row < 0 || !m_state.SelectedNode) {
        return;
    }
    m_state.SelectedNode->NodeAttributes.Remove(row + 1);
    m_page.lstAttributes.removeItem(row);
    m_page.txtAttributeValue.setText(QString());
    m_page.cmdRename.setEnabled(false);
    m_page.cmdDel.setEnabled(false);
    m_page.txtAttributeValue.setEnabled(false);
    setModified(true);
}

void TreeEditor::cmdRename_Click()
{
    const int row = m_page.lstAttributes.listIndex();
    if (row < 0 || !m_state.SelectedNode) {
        return;
    }
    const QString old = m_page.lstAttributes.list(row);
    const QString name = m_session.host.inputBox(
        u"Please enter the new name for the attribute:"_s, u"Rename Attribute"_s, old);
    if (name.isEmpty() || name == old) {
        return;
    }
    if (name.contains(QLatin1Char(' '))) {
        message(u"No spaces are allowed to be used in the attribute's name"_s,
                u"Invalid Character"_s);
        return;
    }
    m_page.lstAttributes.setList(row, name);
    m_state.SelectedNode->NodeAttributes.Item(row + 1).AttribName = name;
    setModified(true);
}

void TreeEditor::mnuNodePopUpNew_Click()
{
    if (anchor().ChildNodes.Count() == 0) {
        newPrimaryNode();
    } else {
        newChildNode();
    }
}

void TreeEditor::newPrimaryNode()
{
    const QString key = u"nod1"_s;
    anchor().ChildNodes.Add(u"PrimaryNode"_s, QString(), {}, {}, &anchor(), key, key);
    m_page.trevwContents.add(QString(), key, u"PrimaryNode"_s);
    m_state.NodeCounter = 1;
}

void TreeEditor::newChildNode()
{
    clsNode *parent = m_state.SelectedNode;
    if (!parent) {
        return;
    }
    ++m_state.NodeCounter;
    const QString key = u"nod"_s + QString::number(m_state.NodeCounter);
    parent->ChildNodes.Add(u"ChildNode"_s, QString(), {}, {}, parent, key, key);
    m_page.trevwContents.add(parent->NodeKey, key, u"ChildNode"_s);
    m_page.trevwContents.setExpanded(parent->NodeKey, true);
    m_page.trevwContents.userSelect(key);
    m_page.trevwContents.startLabelEdit();
    setModified(true);
}

void TreeEditor::mnuNodePopupRename_Click()
{
    m_page.trevwContents.startLabelEdit();
}

void TreeEditor::mnuNodePopUpDelete_Click()
{
    const QString key = m_page.trevwContents.selectedKey();
    clsNode *node = key.isEmpty() ? nullptr : FindNodeByKey(anchor(), key);
    if (!node) {
        return;
    }
    if (node->ChildNodes.Count() > 0
        && m_session.host.msgBox(u"Delete this node and all child nodes?"_s,
                                 ui::Buttons::YesNo,
                                 ui::Icon::Exclamation,
                                 u"Confirm Child Bearing Node"_s)
            == ui::Answer::No) {
        return;
    }
    // The selection may lie inside the subtree that goes.
    for (const clsNode *up = m_state.SelectedNode; up; up = up->ParentNode) {
        if (up == node) {
            m_state.SelectedNode = nullptr;
            break;
        }
    }
    node->ParentNode->ChildNodes.Remove(key);
    m_page.trevwContents.remove(key);
    setModified(true);
}

void TreeEditor::mnuEditCopy_Click()
{
    if (!m_state.SelectedNode) {
        return;
    }
    m_state.CopiedNode = copyNode(*m_state.SelectedNode, m_state.NodeCounter);
    m_page.mnuEditPaste.setEnabled(true);
}

void TreeEditor::mnuEditPaste_Click()
{
    clsNode *parent = m_state.SelectedNode;
    if (!parent || !m_state.CopiedNode) {
        return;
    }
    std::unique_ptr<clsNode> copy = copyNode(*m_state.CopiedNode, m_state.NodeCounter);
    copy->ParentNode = parent;
    const QString key = copy->NodeKey;
    const clsNode &placed = parent->ChildNodes.Append(std::move(copy), key);
    addScreenNodes(m_page.trevwContents, parent->NodeKey, placed);
}

} // namespace xml
