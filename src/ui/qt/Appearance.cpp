#include "ui/qt/Appearance.h"

#include "ui/Control.h"

#include <QPalette>
#include <QWidget>

namespace uiqt
{

QColor toColor(int bgr)
{
    if (bgr < 0) {
        return {};
    }
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

void applyCommon(QWidget &widget, const ui::Control &control)
{
    // A widget that is not yet in a shown window must not be shown on its own as a top level.
    if (widget.parentWidget() || !control.visible()) {
        widget.setVisible(control.visible());
    }
    widget.setEnabled(control.enabled());
    if (widget.toolTip() != control.toolTip()) {
        widget.setToolTip(control.toolTip());
    }
    if (widget.font().bold() != control.bold()) {
        QFont font = widget.font();
        font.setBold(control.bold());
        widget.setFont(font);
    }
    const QColor color = toColor(control.foreColor());
    QPalette palette = widget.palette();
    const QColor current = palette.color(QPalette::WindowText);
    if (color.isValid() ? current != color : widget.testAttribute(Qt::WA_SetPalette)) {
        if (color.isValid()) {
            for (const QPalette::ColorRole role :
                 {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
                palette.setColor(role, color);
            }
            widget.setPalette(palette);
        } else {
            widget.setPalette(QPalette());
        }
    }
}

} // namespace uiqt
