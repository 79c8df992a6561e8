#pragma once
// Puts the widgets of a window's controls in their places: where a layout hint puts them, in twips
// inside their container (a frame, or a page of a tab control), or else stacked in a form in the
// order the window registered them.

#include <vector>

class QWidget;

namespace ui
{
class Control;
class Window;
} // namespace ui

namespace uiqt
{

struct PlacedControl {
    ui::Control *control;
    QWidget *widget;
};

// Arranges the controls, in registration order, into the body and their containers.
void arrangeControls(const ui::Window &window,
                     const std::vector<PlacedControl> &controls,
                     QWidget &body);

} // namespace uiqt
