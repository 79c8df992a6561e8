#pragma once
// Picks a route for the main window's route commands: the caller fills the list, the choice is
// left in the session's SelRouteIndex (9999 when cancelled).

#include "core/Session.h"
#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/ListBox.h"
#include "ui/Window.h"

namespace authoring
{

class dlgSelRoute : public ui::Window
{
public:
    static constexpr int Cancelled = 9999;

    dlgSelRoute(core::Session &session, ui::Forms &forms);

    ui::ListBox List1;
    ui::Button OKButton;
    ui::Button CancelButton;

    void OKButton_Click();
    void CancelButton_Click();

private:
    core::Session &m_session;
    ui::Forms &m_forms;
};

} // namespace authoring
