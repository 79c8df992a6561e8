#include "authoring/dlgSelRoute.h"

namespace authoring
{

dlgSelRoute::dlgSelRoute(core::Session &session, ui::Forms &forms)
    : Window(QStringLiteral("dlgSelRoute"))
    , m_session(session)
    , m_forms(forms)
{
    setCaption(QStringLiteral("Select Route"));
    add(QStringLiteral("List1"), List1);
    add(QStringLiteral("OKButton"), OKButton).setCaption(QStringLiteral("OK"));
    add(QStringLiteral("CancelButton"), CancelButton).setCaption(QStringLiteral("Cancel"));
    OKButton.onClick([this] { OKButton_Click(); });
    CancelButton.onClick([this] { CancelButton_Click(); });
}

void dlgSelRoute::OKButton_Click()
{
    for (int row = 0; row < List1.listCount(); ++row) {
        if (List1.selected(row)) {
            m_session.SelRouteIndex = row;
            break;
        }
    }
    m_forms.unload(*this);
}

void dlgSelRoute::CancelButton_Click()
{
    m_session.SelRouteIndex = Cancelled;
    m_forms.unload(*this);
}

} // namespace authoring
