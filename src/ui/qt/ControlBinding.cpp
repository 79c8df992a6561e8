#include "ui/qt/ControlBinding.h"

#include "ui/Control.h"
#include "ui/qt/Appearance.h"
#include "ui/qt/EventGuard.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace uiqt
{

namespace
{

// The key a character stands for, for a key event made up after a handler changed the key.
int keyFor(int ascii)
{
    switch (ascii) {
    case 8:
        return Qt::Key_Backspace;
    case 13:
        return Qt::Key_Return;
    case 27:
        return Qt::Key_Escape;
    default:
        return QChar(ascii).toUpper().unicode();
    }
}

} // namespace

ControlBinding::ControlBinding(ui::Control &control, QWidget &widget, ViewContext &context)
    : QObject(&widget)
    , m_control(control)
    , m_widget(widget)
    , m_context(context)
{
    // The model may outlive the widget when a window is dropped without being closed.
    const QPointer<ControlBinding> self(this);
    m_subscription = control.subscribe([self] {
        if (self) {
            self->repaintLater();
        }
    });
    watch(widget);
}

void ControlBinding::repaintNow()
{
    if (m_detached) {
        return;
    }
    m_painting = true;
    applyCommon(m_widget, m_control);
    if (m_paint) {
        m_paint();
    }
    m_painting = false;
}

void ControlBinding::userEdit(const std::function<void()> &edit)
{
    if (m_painting || m_detached) {
        return;
    }
    runGuarded(m_context.host, edit);
    // The model may have refused or changed what the user did; show what it holds.
    repaintLater();
}

void ControlBinding::watch(QWidget &part)
{
    part.installEventFilter(this);
}

void ControlBinding::detach()
{
    if (!m_detached) {
        m_detached = true;
        m_control.unsubscribe(m_subscription);
    }
}

void ControlBinding::repaintLater()
{
    if (m_pending || m_detached) {
        return;
    }
    m_pending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_pending = false;
            repaintNow();
        },
        Qt::QueuedConnection);
}

bool ControlBinding::eventFilter(QObject *watched, QEvent *event)
{
    if (m_detached || m_painting) {
        return false;
    }
    ui::Host &host = m_context.host;
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPress(watched, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && m_leftPressHook) {
            m_leftPressHook();
        }
        if (mouse->button() != Qt::RightButton) {
            return false;
        }
        const QPoint pos = mouse->position().toPoint();
        runGuarded(host, [&] {
            if (m_rightClickTarget) {
                m_rightClickTarget(pos);
            }
            m_control.fireRightClick();
        });
        // The model decides what a right click selects; the widget's own reaction would differ.
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (m_clickOnRelease && mouse->button() == Qt::LeftButton
            && m_widget.rect().contains(mouse->position().toPoint())) {
            runGuarded(host, [&] { m_control.fireClick(); });
        }
        return false;
    }
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
            runGuarded(host, [&] { m_control.fireDblClick(); });
        }
        return false;
    case QEvent::FocusIn: {
        // Focus coming back from a message box or a menu is no new visit to the control; telling
        // the handler would open the box again for ever.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            runGuarded(host, [&] { m_control.fireGotFocus(); });
        }
        if (reason != Qt::MouseFocusReason) {
            // The widget handles the focus after this filter; its reactions come before the clear.
            m_focusArriving = true;
            QMetaObject::invokeMethod(
                this, [this] { m_focusArriving = false; }, Qt::QueuedConnection);
        }
        return false;
    }
    default:
        return false;
    }
}

bool ControlBinding::keyPress(QObject *watched, QKeyEvent *event)
{
    const QString text = event->text();
    if (m_resending || text.size() != 1 || event->key() == Qt::Key_Tab
        || event->key() == Qt::Key_Backtab) {
        return false;
    }
    const int original = text.at(0).unicode();
    int ascii = original;
    runGuarded(m_context.host, [&] { m_control.fireKeyPress(ascii); });
    if (m_detached) {
        return true;
    }
    if (ascii == original) {
        return false;
    }
    if (ascii > 0 && ascii <= 0xFFFF) {
        // The handler put another character in place of the typed one.
        m_resending = true;
        QKeyEvent replaced(
            QEvent::KeyPress, keyFor(ascii), event->modifiers(), QString(QChar(char16_t(ascii))));
        QCoreApplication::sendEvent(watched, &replaced);
        m_resending = false;
    }
    return true;
}

} // namespace uiqt
