#pragma once
// The report window: shows the rows or the text a caller gathered, and lets the user remove
// repeated neighbouring rows, save the report under Reports, and print its text.

#include "core/Session.h"
#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/ListBox.h"
#include "ui/RichText.h"
#include "ui/Window.h"

namespace authoring
{

class frmReport : public ui::Window
{
public:
    frmReport(core::Session &session, ui::Forms &forms);

    ui::ListBox List1;
    ui::RichText RTB1;
    ui::Button Command1;
    ui::Button Command2;
    ui::Button Command3;
    ui::Button Command4;

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

private:
    core::Session &m_session;
    ui::Forms &m_forms;
};

} // namespace authoring
