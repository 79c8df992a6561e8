#pragma once
// The print preview of a grid: prints the caller's grid in a small serif font with the page number
// at the top right of each page.

#include "core/Session.h"
#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/Window.h"

namespace authoring
{

class fEZPrint : public ui::Window
{
public:
    // What the caller sets before showing the window: 1 previews before printing; kind 5 prints
    // the grid.
    static constexpr int GridReport = 5;

    fEZPrint(core::Session &session, ui::Forms &forms);

    void Form_Activate() override;

    ui::Button Command1;
    ui::Button Command2;
    ui::Button Command5;
    ui::Label Label1;

    int PrintType = 0;
    int ReportKind = 0;
    const ui::Grid *Source = nullptr;

    void Command1_Click();
    void Command2_Click();
    void Command5_Click();

    bool cancelRequested() const { return m_cancel; }

private:
    core::Session &m_session;
    ui::Forms &m_forms;
    bool m_started = false;
    bool m_cancel = false;
};

} // namespace authoring
