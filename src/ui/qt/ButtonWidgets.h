#pragma once
// Widgets for the captioned controls: labels, frames, buttons, check boxes, option buttons, and
// the picture box.

class QWidget;

namespace ui
{
class Button;
class CheckBox;
class Frame;
class Label;
class OptionButton;
class PictureBox;
} // namespace ui

namespace uiqt
{

struct ViewContext;

QWidget *makeLabel(ui::Label &label, ViewContext &context);
QWidget *makeFrame(ui::Frame &frame, ViewContext &context);
QWidget *makeButton(ui::Button &button, ViewContext &context);
QWidget *makeCheckBox(ui::CheckBox &check, ViewContext &context);
QWidget *makeOptionButton(ui::OptionButton &option, ViewContext &context);
QWidget *makePictureBox(ui::PictureBox &picture, ViewContext &context);

} // namespace uiqt
