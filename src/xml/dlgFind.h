#pragma once
// The question the tree search asks at each hit: "Continue" goes on to the next hit, the other
// button stops the search there.

#include "ui/Button.h"
#include "ui/Label.h"
#include "ui/Window.h"

namespace ui
{
class Forms;
}

namespace xml
{

class dlgFind : public ui::Window
{
public:
    explicit dlgFind(ui::Forms &forms);

    // The flag the buttons set: True when the user accepts the hit.
    void answerInto(bool &searchStopped) { m_searchStopped = &searchStopped; }

    ui::Label Label1;
    ui::Button FindButton;
    ui::Button OKButton;

    void FindButton_Click();
    void OKButton_Click();

private:
    void answer(bool stopped);

    ui::Forms &m_forms;
    bool *m_searchStopped = nullptr;
};

} // namespace xml
