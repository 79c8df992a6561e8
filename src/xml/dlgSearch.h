#pragma once
// Find and replace in the text page: find from the start, find the next, replace one hit or all
// of them, with a whole-word option. Works on the rich text box its caller hands it.

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Menu.h"
#include "ui/TextBox.h"
#include "ui/Window.h"

namespace ui
{
class Forms;
class RichText;
} // namespace ui

namespace xml
{

class dlgSearch : public ui::Window
{
public:
    explicit dlgSearch(ui::Forms &forms);

    // The text the dialog searches; the caller's box outlives the dialog's use of it.
    void searchIn(ui::RichText &box) { m_box = &box; }

    ui::TextBox Text2;
    ui::TextBox Text3;
    ui::Button Command4;
    ui::Button Command2;
    ui::Button Command5;
    ui::Button Command6;
    ui::Button Command1;
    ui::CheckBox Check1;
    ui::Button OKButton;
    ui::Menu mnuSearchMenu;
    ui::Menu mnuNext;

    void Command4_Click();
    void Command2_Click();
    void Command5_Click();
    void Command6_Click();
    void Command1_Click();
    void OKButton_Click();
    void Text2_KeyPress(int &keyAscii);

    int foundAt() const { return FoundAt; }

private:
    int options() const;
    // Searches from the character after the selection's start.
    void findNext();

    ui::Forms &m_forms;
    ui::RichText *m_box = nullptr;
    int FoundAt = -1;
    int SearchFrom = 0;
};

} // namespace xml
