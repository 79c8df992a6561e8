#pragma once
// A command button; a click runs its handler.

#include "ui/Control.h"

namespace ui
{

class Button : public Control
{
public:
    QString kind() const override { return QStringLiteral("Button"); }
};

} // namespace ui
