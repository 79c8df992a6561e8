#pragma once
// The widget of a rich text box: its text in a fixed font with the model's coloured and bold runs.
// The user's typing goes to the model as a replacement of the changed span, so that the runs
// around it keep their colours.

class QWidget;

namespace ui
{
class RichText;
}

namespace uiqt
{

struct ViewContext;

QWidget *makeRichText(ui::RichText &box, ViewContext &context);

} // namespace uiqt
