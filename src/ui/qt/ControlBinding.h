#pragma once
// Keeps one widget in step with one control model. Model changes repaint the widget on the next
// turn of the event loop, so that a handler filling a list of thousands paints it once; user
// edits go to the model through the event guard and never come back round as edits; mouse, key
// and focus events reach the model's handlers.

#include "ui/qt/ViewContext.h"

#include <QObject>
#include <QPoint>

#include <functional>

class QKeyEvent;
class QWidget;

namespace ui
{
class Control;
}

namespace uiqt
{

class ControlBinding : public QObject
{
    Q_OBJECT

public:
    // The binding lives as long as the widget, which owns it.
    ControlBinding(ui::Control &control, QWidget &widget, ViewContext &context);

    ui::Control &control() const { return m_control; }

    QWidget &widget() const { return m_widget; }

    ViewContext &context() const { return m_context; }

    // What this kind shows of its model; runs only while painting() is true.
    void setPaint(std::function<void()> paint) { m_paint = std::move(paint); }

    // Sets the widget from the model now.
    void repaintNow();

    // True while the widget is being set from the model: its signals are then no user edits.
    bool painting() const { return m_painting; }

    // Carries a user's edit to the model, then repaints so that the widget shows what the model
    // kept. Ignored while painting and after detach.
    void userEdit(const std::function<void()> &edit);

    // True while focus arrives by the keyboard: an item view then makes its first row current on
    // its own, which is no choice of the user's.
    bool focusArriving() const { return m_focusArriving; }

    // Sets the widget from the model on the next turn of the event loop.
    void repaintLater();

    // Also watches a part of the widget (a viewport, an embedded line edit).
    void watch(QWidget &part);

    // Called before the model hears of a right click, with the pointer in the watched part.
    void setRightClickTarget(std::function<void(QPoint)> target)
    {
        m_rightClickTarget = std::move(target);
    }

    // Called when the left button goes down, before the widget reacts to it.
    void setLeftPressHook(std::function<void()> hook) { m_leftPressHook = std::move(hook); }

    // Labels and pictures click on release; the other kinds have a signal of their own.
    void setClickOnRelease(bool on) { m_clickOnRelease = on; }

    // Stops listening to the model, which may be destroyed from now on.
    void detach();

    bool detached() const { return m_detached; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool keyPress(QObject *watched, QKeyEvent *event);

    ui::Control &m_control;
    QWidget &m_widget;
    ViewContext &m_context;
    std::function<void()> m_paint;
    std::function<void(QPoint)> m_rightClickTarget;
    std::function<void()> m_leftPressHook;
    int m_subscription = 0;
    bool m_painting = false;
    bool m_pending = false;
    bool m_detached = false;
    bool m_clickOnRelease = false;
    bool m_resending = false;
    bool m_focusArriving = false;
};

} // namespace uiqt
