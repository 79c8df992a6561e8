#pragma once
// The rendered view of one window: a dialog holding its menu bar, its controls as the window
// registered and placed them, and its status bars at the foot. Caption and measures are kept in
// step with the window both ways; the close box asks the host to unload the window.

#include "ui/qt/ViewContext.h"

#include <QDialog>

#include <functional>

class QMenuBar;

namespace ui
{
class Window;
}

namespace uiqt
{

class MenuBar;

class WindowView : public QDialog
{
    Q_OBJECT

public:
    WindowView(ui::Window &window, ViewContext &context, std::function<void()> closeRequested);

    ui::Window &window() const { return m_window; }

    // The widget made for a control, by the control's name; null when there is none.
    QWidget *controlWidget(const QString &name) const;

    // Runs the view modally; returns when the view is closed.
    void runModal();

    bool isModalRunning() const { return m_modal; }

    // Stops listening to the window and its controls, which may be destroyed from now on.
    void detach();

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void build();
    void applyWindow();
    void storeMeasures();

    ui::Window &m_window;
    ViewContext &m_context;
    std::function<void()> m_closeRequested;
    MenuBar *m_menus = nullptr;
    int m_subscription = 0;
    bool m_detached = false;
    bool m_applying = false;
    bool m_modal = false;
};

} // namespace uiqt
