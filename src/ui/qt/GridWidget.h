#pragma once
// The widget of a grid: a table whose first fixed row and column are its headers, the current
// cell, and the selected row range.

class QWidget;

namespace ui
{
class Grid;
}

namespace uiqt
{

struct ViewContext;

QWidget *makeGrid(ui::Grid &grid, ViewContext &context);

} // namespace uiqt
