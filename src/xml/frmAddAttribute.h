#pragma once
// The dialog that asks for a new attribute's name and value; a name is required and may not hold
// a blank. An accepted entry goes to the handler the caller gave, and the dialog closes.

#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/TextBox.h"
#include "ui/Window.h"

#include <functional>

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

class frmAddAttribute : public ui::Window
{
public:
    using Accepted = std::function<void(const QString &name, const QString &value)>;

    frmAddAttribute(core::Session &session, ui::Forms &forms);

    // What to do with an entry once OK accepts it.
    void onAccepted(Accepted accepted) { m_accepted = std::move(accepted); }

    ui::Label Label1;
    ui::TextBox txtName;
    ui::Label Label2;
    ui::TextBox txtValue;
    ui::Button cmdOK;
    ui::Button cmdCancel;

    void cmdOK_Click();
    void cmdCancel_Click();

private:
    core::Session &m_session;
    ui::Forms &m_forms;
    Accepted m_accepted;
};

} // namespace xml
