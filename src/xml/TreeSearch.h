#pragma once
// The tree page's search: finds a term in node names or in the elements' text, one hit at a time
// with a question, or all at once in bold; replaces in the shown element's text or in every
// element's text.

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

struct TreeState;

class TreeSearch
{
public:
    // More screen nodes than the search can count through.
    static constexpr int MaxItems = 65501;

    TreeSearch(core::Session &session,
               ui::Forms &forms,
               TreeState &state,
               const TreePage &page,
               const TreeSearchPage &search);

    void connect();

    void Text2_Change();
    void Text2_KeyPress(int &keyAscii);
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();

private:
    enum class Mode { Names, AllNames, Text, ReplaceAll };

    void search(Mode mode);
    // Whether the term stands in the text, the first place it is found, and (when asked) as a
    // word of its own.
    bool hit(const QString &text, const QString &term) const;
    bool replaceBoxEmpty() const;
    void replaceInShownText();

    core::Session &m_session;
    ui::Forms &m_forms;
    TreeState &m_state;
    TreePage m_page;
    TreeSearchPage m_search;
};

} // namespace xml
