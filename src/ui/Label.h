#pragma once
// A caption on a window.

#include "ui/Control.h"

namespace ui
{

class Label : public Control
{
public:
    QString kind() const override { return QStringLiteral("Label"); }
};

} // namespace ui
