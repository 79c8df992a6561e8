#pragma once
// The host for people: Qt's message, input and file dialogs, windows rendered from their controls,
// a modal window run as a dialog until the program hides or unloads it, the busy pointer.

#include "ui/Host.h"
#include "ui/qt/ViewContext.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <map>

class QWidget;

namespace uiqt
{

class WindowView;

class QtHost : public ui::Host
{
public:
    // Paths in the program are Windows paths; the two mappings turn them into the disk's and
    // back (empty: unchanged), since the mapping lives with the platform services.
    explicit QtHost(QString appTitle, PathMapping toHost = {}, PathMapping toWindows = {});
    ~QtHost() override;
    QtHost(const QtHost &) = delete;
    QtHost &operator=(const QtHost &) = delete;

    ui::Answer
    msgBox(const QString &text, ui::Buttons buttons, ui::Icon icon, const QString &title) override;
    QString
    inputBox(const QString &prompt, const QString &title, const QString &defaultText) override;
    QString fileDialog(const ui::FileDialogRequest &request) override;
    void show(ui::Window &window, bool modal) override;
    void close(ui::Window &window) override;
    void yield() override;
    void setBusy(bool busy) override;
    void beep() override;
    bool print(const ui::PrintJob &job) override;
    void showPicture(const QString &winPath, bool fullScreen) override;

    QString appTitle() const override { return m_appTitle; }

    // What the close box of a window does; the program hands in its unload. Without one, the
    // window's unload events run here and, unless cancelled, the window closes.
    void setCloseRequest(std::function<void(ui::Window &)> request)
    {
        m_closeRequest = std::move(request);
    }

    // The rendered view of a shown window, or null.
    WindowView *view(const ui::Window &window) const;

private:
    WindowView &render(ui::Window &window);
    void requestClose(ui::Window &window);

    QString m_appTitle;
    ViewContext m_context;
    PathMapping m_toWindows;
    std::function<void(ui::Window &)> m_closeRequest;
    std::map<const ui::Window *, QPointer<WindowView>> m_views;
    bool m_busy = false;
};

} // namespace uiqt
