#include "ui/qt/WindowView.h"

#include "ui/Control.h"
#include "ui/Window.h"
#include "ui/qt/Appearance.h"
#include "ui/qt/Arranger.h"
#include "ui/qt/ControlBinding.h"
#include "ui/qt/ControlWidgets.h"
#include "ui/qt/MenuBar.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QPointer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

// Whether the window puts any control on a page of this tab control.
bool hasPages(const ui::Window &window, const ui::Control &tabs)
{
    for (const ui::Window::Entry &entry : window.controls()) {
        const ui::LayoutHint *hint = window.layout(entry.name);
        if (hint && hint->container.compare(tabs.name(), Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

WindowView::WindowView(ui::Window &window,
                       ViewContext &context,
                       std::function<void()> closeRequested)
    : m_window(window)
    , m_context(context)
    , m_closeRequested(std::move(closeRequested))
{
    setObjectName(window.name());
    setSizeGripEnabled(true);
    build();
    applyWindow();
    const QPointer<WindowView> self(this);
    m_subscription = window.subscribe([self] {
        if (self) {
            self->applyWindow();
        }
    });
}

void WindowView::build()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *bar = new QMenuBar(this);
    column->setMenuBar(bar);
    m_menus = new MenuBar(m_window, *bar, m_context);

    auto *body = new QWidget(this);
    std::vector<PlacedControl> placed;
    std::vector<QWidget *> foot;
    for (const ui::Window::Entry &entry : m_window.controls()) {
        const bool pages =
            entry.control->kind() == u"TabStrip"_s && hasPages(m_window, *entry.control);
        QWidget *widget = makeControlWidget(*entry.control, m_context, pages);
        if (!widget) {
            continue;
        }
        if (entry.control->kind() == u"StatusBar"_s) {
            foot.push_back(widget);
        } else {
            placed.push_back(PlacedControl{entry.control, widget});
        }
    }
    arrangeControls(m_window, placed, *body);
    column->addWidget(body, 1);
    for (QWidget *widget : foot) {
        column->addWidget(widget);
    }
    // Visibility waited until each widget had its place in the window.
    for (ControlBinding *binding : findChildren<ControlBinding *>()) {
        binding->repaintNow();
    }
}

QWidget *WindowView::controlWidget(const QString &name) const
{
    for (QWidget *widget : findChildren<QWidget *>(name)) {
        // Menus have objects of the same name; only a control's widget carries a binding.
        if (widget->findChild<ControlBinding *>(QString(), Qt::FindDirectChildrenOnly)) {
            return widget;
        }
    }
    return nullptr;
}

void WindowView::applyWindow()
{
    if (m_detached) {
        return;
    }
    m_applying = true;
    if (windowTitle() != m_window.caption()) {
        setWindowTitle(m_window.caption());
    }
    const QSize size(toPixels(m_window.width()), toPixels(m_window.height()));
    // Also when the size is Qt's default: a window never resized is shrunk to its contents.
    resize(size);
    // A window at 0,0 has no place of its own; the window system places it.
    if (m_window.left() != 0 || m_window.top() != 0) {
        const QPoint at(toPixels(m_window.left()), toPixels(m_window.top()));
        if (pos() != at) {
            move(at);
        }
    }
    m_applying = false;
}

void WindowView::storeMeasures()
{
    if (m_applying || m_detached || !isVisible()) {
        return;
    }
    const int left = toTwips(x());
    const int top = toTwips(y());
    const int width = toTwips(this->width());
    const int height = toTwips(this->height());
    // The program's twips survive a round trip through pixels unless the user moved the window.
    if (toPixels(m_window.left()) == x() && toPixels(m_window.top()) == y()
        && toPixels(m_window.width()) == this->width()
        && toPixels(m_window.height()) == this->height()) {
        return;
    }
    m_applying = true;
    m_window.setGeometry(left, top, width, height);
    m_applying = false;
}

void WindowView::runModal()
{
    m_modal = true;
    const QPointer<WindowView> self(this);
    exec();
    if (self) {
        m_modal = false;
    }
}

void WindowView::detach()
{
    if (m_detached) {
        return;
    }
    m_detached = true;
    m_window.unsubscribe(m_subscription);
    m_menus->detach();
    for (ControlBinding *binding : findChildren<ControlBinding *>()) {
        binding->detach();
    }
}

void WindowView::closeEvent(QCloseEvent *event)
{
    // The program decides whether the window goes: its unload events may cancel.
    event->ignore();
    if (!m_detached && m_closeRequested) {
        m_closeRequested();
    }
}

void WindowView::reject()
{
    // Escape closes no window of the program's; a handler of its own may.
}

void WindowView::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    storeMeasures();
}

void WindowView::moveEvent(QMoveEvent *event)
{
    QDialog::moveEvent(event);
    storeMeasures();
}

} // namespace uiqt
