#pragma once
// A framed group of controls; its caption is the frame's title.

#include "ui/Control.h"

namespace ui
{

class Frame : public Control
{
public:
    QString kind() const override { return QStringLiteral("Frame"); }
};

} // namespace ui
