#pragma once
// What the main window's tab switch says on each page: the two tabs are two editors of one file,
// and the default editor with the user's choice for the session decide which of them counts.
// On the page that does not count, the frame's caption warns, and the menus stay those of the
// editor that does.

#include <QString>

namespace xml
{

struct EditorTabView {
    QString frameCaption;
    bool warning = false; // shown bold and red
    bool treeMenus = false;
};

// page: 0 the text page, 1 the tree page; choice: 0 none, 1 the text editor, 2 the tree editor.
EditorTabView editorTabView(int page, bool defaultEditorIsTree, int editorChoice);

// The colour of a warning caption.
constexpr int WarningColor = 255;

} // namespace xml
