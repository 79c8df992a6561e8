#include "ui/qt/ControlWidgets.h"

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/FileList.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/OptionButton.h"
#include "ui/PictureBox.h"
#include "ui/ProgressBar.h"
#include "ui/RichText.h"
#include "ui/StatusBar.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/qt/BarWidgets.h"
#include "ui/qt/ButtonWidgets.h"
#include "ui/qt/GridWidget.h"
#include "ui/qt/ListWidgets.h"
#include "ui/qt/RichTextWidget.h"
#include "ui/qt/TextWidgets.h"
#include "ui/qt/TreeWidget.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

template <typename C> C *as(ui::Control &control)
{
    return dynamic_cast<C *>(&control);
}

} // namespace

QWidget *makeControlWidget(ui::Control &control, ViewContext &context, bool tabsWithPages)
{
    QWidget *widget = nullptr;
    // The most derived kinds first: a combo box is a list box, a slider a progress bar.
    if (as<ui::Menu>(control)) {
        return nullptr;
    } else if (auto *combo = as<ui::ComboBox>(control)) {
        widget = makeComboBox(*combo, context);
    } else if (auto *drives = as<ui::DriveList>(control)) {
        widget = makeDriveList(*drives, context);
    } else if (auto *list = as<ui::ListBox>(control)) {
        widget = makeListBox(*list, context);
    } else if (auto *slider = as<ui::Slider>(control)) {
        widget = makeSlider(*slider, context);
    } else if (auto *bar = as<ui::ProgressBar>(control)) {
        widget = makeProgressBar(*bar, context);
    } else if (auto *label = as<ui::Label>(control)) {
        widget = makeLabel(*label, context);
    } else if (auto *frame = as<ui::Frame>(control)) {
        widget = makeFrame(*frame, context);
    } else if (auto *button = as<ui::Button>(control)) {
        widget = makeButton(*button, context);
    } else if (auto *check = as<ui::CheckBox>(control)) {
        widget = makeCheckBox(*check, context);
    } else if (auto *option = as<ui::OptionButton>(control)) {
        widget = makeOptionButton(*option, context);
    } else if (auto *text = as<ui::TextBox>(control)) {
        widget = makeTextBox(*text, context);
    } else if (auto *rich = as<ui::RichText>(control)) {
        widget = makeRichText(*rich, context);
    } else if (auto *tree = as<ui::TreeView>(control)) {
        widget = makeTreeView(*tree, context);
    } else if (auto *grid = as<ui::Grid>(control)) {
        widget = makeGrid(*grid, context);
    } else if (auto *status = as<ui::StatusBar>(control)) {
        widget = makeStatusBar(*status, context);
    } else if (auto *tabs = as<ui::TabStrip>(control)) {
        widget = makeTabStrip(*tabs, context, tabsWithPages);
    } else if (auto *picture = as<ui::PictureBox>(control)) {
        widget = makePictureBox(*picture, context);
    } else {
        // A kind this view does not know yet still takes its place, named, so it can be found.
        widget = new QLabel(u"["_s + control.kind() + u"]"_s);
    }
    widget->setObjectName(control.name());
    return widget;
}

} // namespace uiqt
