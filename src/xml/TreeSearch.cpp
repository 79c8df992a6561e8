#include "xml/TreeSearch.h"

#include "core/IsAlphaName.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Forms.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "xml/TreeState.h"
#include "xml/clsNode.h"
#include "xml/dlgFind.h"

using namespace Qt::StringLiterals;

namespace xml
{

TreeSearch::TreeSearch(core::Session &session,
                       ui::Forms &forms,
                       TreeState &state,
                       const TreePage &page,
                       const TreeSearchPage &search)
    : m_session(session)
    , m_forms(forms)
    , m_state(state)
    , m_page(page)
    , m_search(search)
{
}

void TreeSearch::connect()
{
    m_search.Text2.onChange([this] { Text2_Change(); });
    m_search.Text2.onKeyPress([this](int &keyAscii) { Text2_KeyPress(keyAscii); });
    m_search.Command2.onClick([this] { Command2_Click(); });
    m_search.Command3.onClick([this] { Command3_Click(); });
    m_search.Command4.onClick([this] { Command4_Click(); });
    m_search.Command5.onClick([this] { Command5_Click(); });
    m_search.Command6.onClick([this] { Command6_Click(); });
}

void TreeSearch::Text2_Change()
{
    m_state.TreeSearchIndex = 1;
}

void TreeSearch::Text2_KeyPress(int &keyAscii)
{
    if (keyAscii == 13) {
        Command2_Click();
    }
}

void TreeSearch::Command2_Click()
{
    search(Mode::Names);
}

void TreeSearch::Command3_Click()
{
    search(Mode::AllNames);
}

void TreeSearch::Command4_Click()
{
    search(Mode::Text);
}

void TreeSearch::Command5_Click()
{
    if (replaceBoxEmpty()) {
        return;
    }
    replaceInShownText();
}

void TreeSearch::Command6_Click()
{
    if (replaceBoxEmpty()) {
        return;
    }
    search(Mode::ReplaceAll);
}

bool TreeSearch::replaceBoxEmpty() const
{
    if (!m_search.Text3.text().isEmpty()) {
        return false;
    }
    m_session.host.msgBox(u"You have not entered anything in the Replace box?"_s,
                          ui::Buttons::OK,
                          ui::Icon::None,
                          m_session.host.appTitle());
    return true;
}

// The text box's change handler takes the new text into the shown element.
void TreeSearch::replaceInShownText()
{
    m_page.txtCharacters.setText(core::replaceAll(m_page.txtCharacters.text(),
                                                  m_search.Text2.text(),
                                                  m_search.Text3.text(),
                                                  Qt::CaseInsensitive));
}

bool TreeSearch::hit(const QString &text, const QString &term) const
{
    const int at = core::instr(text, term, Qt::CaseInsensitive);
    if (at == 0) {
        return false;
    }
    if (!m_search.Check1.checked()) {
        return true;
    }
    const bool wordBefore = at > 1 && core::IsAlphaName(core::mid(text, at - 1, 1));
    const bool wordAfter = core::IsAlphaName(core::mid(text, at + int(term.size()), 1));
    return !wordBefore && !wordAfter;
}

void TreeSearch::search(Mode mode)
{
    ui::Host &host = m_session.host;
    ui::TreeView &tree = m_page.trevwContents;
    m_state.SearchStopped = false;
    m_state.TreeSearchTerm = m_search.Text2.text();
    const int count = tree.count();
    if (count >= MaxItems) {
        host.msgBox(
            u"Unfortunately, this file is too long for this Search to work.\r\nPlease open in the Brakevan editor and run Search there."_s,
            ui::Buttons::OK,
            ui::Icon::Exclamation,
            host.appTitle());
        return;
    }
    const QStringList keys = tree.keysInOrder();
    const bool inText = mode == Mode::Text || mode == Mode::ReplaceAll;
    for (int index = m_state.TreeSearchIndex; index <= count; ++index) {
        const QString &key = keys.at(index - 1);
        QString text;
        if (inText) {
            tree.userSelect(key);
            text = m_state.SelectedNode ? m_state.SelectedNode->NodeCharacters : QString();
        } else {
            text = tree.node(key).text;
        }
        if (!hit(text, m_state.TreeSearchTerm)) {
            continue;
        }
        tree.select(QString());
        tree.select(key);
        tree.setBold(key, true);
        host.yield();
        if (mode == Mode::AllNames) {
            continue;
        }
        if (mode == Mode::ReplaceAll) {
            replaceInShownText();
            continue;
        }
        m_state.TreeSearchIndex = index + 1;
        dlgFind &question = m_forms.get<dlgFind>();
        question.answerInto(m_state.SearchStopped);
        m_forms.show<dlgFind>(true);
        if (m_state.SearchStopped) {
            return;
        }
        tree.setBold(key, false);
    }
    host.msgBox(u"Not found"_s, ui::Buttons::OK, ui::Icon::None, host.appTitle());
}

} // namespace xml
