#include "xml/dlgSearch.h"

#include "ui/Forms.h"
#include "ui/RichText.h"

using namespace Qt::StringLiterals;

namespace xml
{

dlgSearch::dlgSearch(ui::Forms &forms)
    : Window(u"dlgSearch"_s)
    , m_forms(forms)
{
    setCaption(u"Search and Replace"_s);
    setGeometry(0, 0, 6000, 2600);
    add(u"Text2"_s, Text2);
    add(u"Text3"_s, Text3);
    add(u"Command4"_s, Command4).setCaption(u"Find"_s);
    Command4.setToolTip(
        u"Find the word in the top box, keep clicking to cycle through all instances"_s);
    add(u"Command2"_s, Command2).setCaption(u"Find Next"_s);
    add(u"Command5"_s, Command5).setCaption(u"Replace"_s);
    Command5.setToolTip(u"Replace selected word with the one in replace box"_s);
    add(u"Command6"_s, Command6).setCaption(u"Replace All"_s);
    Command6.setToolTip(u"Replaces all instances of top string with the one in the bottom box."_s);
    add(u"Command1"_s, Command1).setCaption(u"Clear All"_s);
    add(u"Check1"_s, Check1).setCaption(u"Whole Word only"_s);
    add(u"OKButton"_s, OKButton).setCaption(u"Close"_s);
    addMenu(u"mnuSearchMenu"_s, mnuSearchMenu, QString(), u"Search"_s).setVisible(false);
    addMenu(u"mnuNext"_s, mnuNext, u"mnuSearchMenu"_s, u"Find"_s);

    Command4.onClick([this] { Command4_Click(); });
    Command2.onClick([this] { Command2_Click(); });
    Command5.onClick([this] { Command5_Click(); });
    Command6.onClick([this] { Command6_Click(); });
    Command1.onClick([this] { Command1_Click(); });
    OKButton.onClick([this] { OKButton_Click(); });
    mnuNext.onClick([this] { Command4_Click(); });
    Text2.onKeyPress([this](int &keyAscii) { Text2_KeyPress(keyAscii); });
}

int dlgSearch::options() const
{
    return Check1.checked() ? int(ui::RichText::WholeWord) : 0;
}

void dlgSearch::Command4_Click()
{
    if (!m_box) {
        return;
    }
    SearchFrom = 1;
    FoundAt = m_box->find(Text2.text(), 0, -1, options());
}

void dlgSearch::findNext()
{
    SearchFrom = m_box->selStart() + 1;
    FoundAt = m_box->find(Text2.text(), SearchFrom, -1, options());
}

void dlgSearch::Command2_Click()
{
    if (m_box) {
        findNext();
    }
}

void dlgSearch::Command5_Click()
{
    if (!m_box) {
        return;
    }
    findNext();
    if (FoundAt > 0) {
        m_box->setSelText(Text3.text());
    }
}

void dlgSearch::Command6_Click()
{
    if (!m_box) {
        return;
    }
    do {
        Command5_Click();
    } while (FoundAt > 0);
}

void dlgSearch::Command1_Click()
{
    Text2.setText(QString());
    Text3.setText(QString());
}

void dlgSearch::OKButton_Click()
{
    m_forms.hide(*this);
}

void dlgSearch::Text2_KeyPress(int &keyAscii)
{
    if (keyAscii == 13) {
        Command4_Click();
    }
}

} // namespace xml
