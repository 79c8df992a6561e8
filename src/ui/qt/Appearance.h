#pragma once
// How the program's measures and colours become pixels and palettes, and the state every control
// shares (visible, enabled, tool tip, bold, fore colour) applied to its widget.

#include <QColor>

class QWidget;

namespace ui
{
class Control;
}

namespace uiqt
{

// The program measures in twips; 15 twips are one pixel at the resolution it was made for.
constexpr int TwipsPerPixel = 15;

constexpr int toPixels(int twips)
{
    return twips / TwipsPerPixel;
}

constexpr int toTwips(int pixels)
{
    return pixels * TwipsPerPixel;
}

// A colour written 0x00BBGGRR; -1 (the default) gives an invalid colour.
QColor toColor(int bgr);

// Applies what every control has; the caption is left to the kind, which knows where it goes.
void applyCommon(QWidget &widget, const ui::Control &control);

} // namespace uiqt
