#pragma once
// Widgets for text boxes: a line edit, or a plain text editor for a multi-line box.

class QWidget;

namespace ui
{
class TextBox;
}

namespace uiqt
{

struct ViewContext;

QWidget *makeTextBox(ui::TextBox &box, ViewContext &context);

} // namespace uiqt
