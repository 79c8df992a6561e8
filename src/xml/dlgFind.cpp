#include "xml/dlgFind.h"

#include "ui/Forms.h"

using namespace Qt::StringLiterals;

namespace xml
{

dlgFind::dlgFind(ui::Forms &forms)
    : Window(u"dlgFind"_s)
    , m_forms(forms)
{
    setCaption(u"Search"_s);
    setGeometry(0, 0, 4500, 1800);
    add(u"Label1"_s, Label1).setCaption(u"Is this the item you wished to find?"_s);
    add(u"FindButton"_s, FindButton).setCaption(u"Continue"_s);
    add(u"OKButton"_s, OKButton).setCaption(u"OK"_s);
    FindButton.onClick([this] { FindButton_Click(); });
    OKButton.onClick([this] { OKButton_Click(); });
}

void dlgFind::FindButton_Click()
{
    answer(false);
}

void dlgFind::OKButton_Click()
{
    answer(true);
}

void dlgFind::answer(bool stopped)
{
    if (m_searchStopped) {
        *m_searchStopped = stopped;
    }
    m_forms.hide(*this);
}

} // namespace xml
