#pragma once
// Widgets for the list kinds: list boxes, file and folder lists (a list widget each), combo boxes
// and the drive list (a combo box each).

class QWidget;

namespace ui
{
class ComboBox;
class DriveList;
class ListBox;
} // namespace ui

namespace uiqt
{

struct ViewContext;

// Also serves FileList and DirList; a double click in a folder list opens that folder.
QWidget *makeListBox(ui::ListBox &list, ViewContext &context);
QWidget *makeComboBox(ui::ComboBox &combo, ViewContext &context);
QWidget *makeDriveList(ui::DriveList &drives, ViewContext &context);

} // namespace uiqt
