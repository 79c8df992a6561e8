#pragma once

// The controls of the main window's tree page that the tree editor and the tree search work on;
// the window owns them.

namespace ui
{
class Button;
class CheckBox;
class ListBox;
class Menu;
class TextBox;
class TreeView;
class Window;
} // namespace ui

namespace xml
{

struct TreePage {
    ui::Window &window;
    ui::TreeView &trevwContents;
    ui::ListBox &lstAttributes;
    ui::TextBox &txtAttributeValue;
    ui::TextBox &txtCharacters;
    ui::Button &cmdAdd;
    ui::Button &cmdDel;
    ui::Button &cmdRename;
    ui::Menu &mnuFileSave;
    ui::Menu &mnuFileSaveAs;
    ui::Menu &mnuNodePopUp;
    ui::Menu &mnuNodePopUpNew;
    ui::Menu &mnuNodePopupRename;
    ui::Menu &mnuNodePopUpDelete;
    ui::Menu &mnuEditCopy;
    ui::Menu &mnuEditPaste;
};

// The search box of the tree page.
struct TreeSearchPage {
    ui::TextBox &Text2;
    ui::TextBox &Text3;
    ui::CheckBox &Check1;
    ui::Button &Command2;
    ui::Button &Command3;
    ui::Button &Command4;
    ui::Button &Command5;
    ui::Button &Command6;
};

// The pages of any owner whose controls carry the tree page's names: the main window, and the
// stand-ins that tests and benchmarks build.
template <typename Owner> TreePage treePageOf(ui::Window &window, Owner &c)
{
    return TreePage{window,
                    c.trevwContents,
                    c.lstAttributes,
                    c.txtAttributeValue,
                    c.txtCharacters,
                    c.cmdAdd,
                    c.cmdDel,
                    c.cmdRename,
                    c.mnuFileSave,
                    c.mnuFileSaveAs,
                    c.mnuNodePopUp,
                    c.mnuNodePopUpNew,
                    c.mnuNodePopupRename,
                    c.mnuNodePopUpDelete,
                    c.mnuEditCopy,
                    c.mnuEditPaste};
}

template <typename Owner> TreeSearchPage treeSearchPageOf(Owner &c)
{
    return TreeSearchPage{
        c.Text2, c.Text3, c.Check1, c.Command2, c.Command3, c.Command4, c.Command5, c.Command6};
}

} // namespace xml
