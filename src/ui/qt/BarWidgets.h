#pragma once
// Widgets for the bars: the status bar and its panels, progress bars, sliders, and the tab control
// (a tab widget whose pages hold controls, or a bare tab bar when the window lays out the pages
// itself).

class QWidget;

namespace ui
{
class ProgressBar;
class StatusBar;
class TabStrip;
} // namespace ui

namespace uiqt
{

struct ViewContext;

QWidget *makeStatusBar(ui::StatusBar &bar, ViewContext &context);
QWidget *makeProgressBar(ui::ProgressBar &bar, ViewContext &context);
QWidget *makeSlider(ui::ProgressBar &slider, ViewContext &context);
QWidget *makeTabStrip(ui::TabStrip &tabs, ViewContext &context, bool withPages);

// The page of a tab widget made with pages, made when missing; null for a bare tab bar.
QWidget *tabPage(QWidget &tabStrip, int tab);

} // namespace uiqt
