#include "ui/qt/QtHost.h"

#include "ui/Window.h"
#include "ui/qt/EventGuard.h"
#include "ui/qt/FileFilter.h"
#include "ui/qt/WindowView.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

QMessageBox::StandardButtons standardButtons(ui::Buttons buttons)
{
    switch (buttons) {
    case ui::Buttons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case ui::Buttons::AbortRetryIgnore:
        return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case ui::Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case ui::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case ui::Buttons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    case ui::Buttons::OK:
        break;
    }
    return QMessageBox::Ok;
}

// The first button is the default one, as the program's boxes have it.
QMessageBox::StandardButton firstButton(ui::Buttons buttons)
{
    switch (buttons) {
    case ui::Buttons::AbortRetryIgnore:
        return QMessageBox::Abort;
    case ui::Buttons::YesNoCancel:
    case ui::Buttons::YesNo:
        return QMessageBox::Yes;
    case ui::Buttons::RetryCancel:
        return QMessageBox::Retry;
    case ui::Buttons::OK:
    case ui::Buttons::OKCancel:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon standardIcon(ui::Icon icon)
{
    switch (icon) {
    case ui::Icon::Critical:
        return QMessageBox::Critical;
    case ui::Icon::Question:
        return QMessageBox::Question;
    case ui::Icon::Exclamation:
        return QMessageBox::Warning;
    case ui::Icon::Information:
        return QMessageBox::Information;
    case ui::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

ui::Answer answerFor(int button, ui::Buttons buttons)
{
    switch (button) {
    case QMessageBox::Ok:
        return ui::Answer::OK;
    case QMessageBox::Cancel:
        return ui::Answer::Cancel;
    case QMessageBox::Abort:
        return ui::Answer::Abort;
    case QMessageBox::Retry:
        return ui::Answer::Retry;
    case QMessageBox::Ignore:
        return ui::Answer::Ignore;
    case QMessageBox::Yes:
        return ui::Answer::Yes;
    case QMessageBox::No:
        return ui::Answer::No;
    default:
        // Closed without a button: a box that can cancel cancels, another gives its only answer.
        return standardButtons(buttons) & QMessageBox::Cancel ? ui::Answer::Cancel : ui::Answer::OK;
    }
}

QString mapped(const PathMapping &mapping, const QString &path)
{
    return mapping && !path.isEmpty() ? mapping(path) : path;
}

QString defaultTitle(ui::FileDialogKind kind)
{
    switch (kind) {
    case ui::FileDialogKind::Save:
        return u"Save As"_s;
    case ui::FileDialogKind::Folder:
        return u"Browse for Folder"_s;
    case ui::FileDialogKind::Open:
        break;
    }
    return u"Open"_s;
}

void setUpFileDialog(QFileDialog &dialog, const ui::FileDialogRequest &request)
{
    // Qt's own dialog matches patterns case-blind, as the program's file names expect.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    switch (request.kind) {
    case ui::FileDialogKind::Open:
        dialog.setFileMode(QFileDialog::ExistingFile);
        break;
    case ui::FileDialogKind::Save:
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        break;
    case ui::FileDialogKind::Folder:
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        break;
    }
    if (request.kind != ui::FileDialogKind::Folder && !request.filter.isEmpty()) {
        dialog.setNameFilter(toQtFilter(request.filter));
    }
    if (!request.initialName.isEmpty()) {
        dialog.selectFile(request.initialName);
    }
}

} // namespace

QtHost::QtHost(QString appTitle, PathMapping toHost, PathMapping toWindows)
    : m_appTitle(std::move(appTitle))
    , m_context{*this, std::move(toHost)}
    , m_toWindows(std::move(toWindows))
{
}

QtHost::~QtHost()
{
    for (auto &entry : m_views) {
        delete entry.second.data();
    }
}

ui::Answer
QtHost::msgBox(const QString &text, ui::Buttons buttons, ui::Icon icon, const QString &title)
{
    QMessageBox box(standardIcon(icon),
                    title.isEmpty() ? m_appTitle : title,
                    text,
                    standardButtons(buttons),
                    QApplication::activeWindow());
    box.setDefaultButton(firstButton(buttons));
    return answerFor(box.exec(), buttons);
}

QString QtHost::inputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title.isEmpty() ? m_appTitle : title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(defaultText);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QString QtHost::fileDialog(const ui::FileDialogRequest &request)
{
    QFileDialog dialog(QApplication::activeWindow(),
                       request.title.isEmpty() ? defaultTitle(request.kind) : request.title,
                       mapped(m_context.toHost, request.initialDir));
    setUpFileDialog(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return mapped(m_toWindows, dialog.selectedFiles().constFirst());
}

WindowView &QtHost::render(ui::Window &window)
{
    const auto it = m_views.find(&window);
    if (it != m_views.end() && it->second) {
        return *it->second;
    }
    auto *view = new WindowView(window, m_context, [this, &window] { requestClose(window); });
    m_views[&window] = view;
    return *view;
}

void QtHost::show(ui::Window &window, bool modal)
{
    QWidget *owner = QApplication::activeWindow();
    WindowView &view = render(window);
    if (modal) {
        if (view.isModalRunning()) {
            view.raise();
            return;
        }
        if (owner && owner != &view) {
            // Kept above the window that opened it, and centred on it by the window system.
            view.winId();
            view.windowHandle()->setTransientParent(owner->windowHandle());
        }
        view.hide();
        QMetaObject::invokeMethod(
            &view,
            [this, &window] { runGuarded(*this, [&] { window.Form_Activate(); }); },
            Qt::QueuedConnection);
        view.runModal();
        return;
    }
    view.show();
    view.raise();
    view.activateWindow();
    runGuarded(*this, [&] { window.Form_Activate(); });
}

void QtHost::close(ui::Window &window)
{
    const auto it = m_views.find(&window);
    if (it == m_views.end()) {
        return;
    }
    const QPointer<WindowView> view = it->second;
    m_views.erase(it);
    if (!view) {
        return;
    }
    view->detach();
    if (view->isModalRunning()) {
        view->done(QDialog::Accepted);
    }
    view->hide();
    // Still on the stack of the handler that closed it; gone once that handler returns.
    view->deleteLater();
}

void QtHost::requestClose(ui::Window &window)
{
    runGuarded(*this, [&] {
        if (m_closeRequest) {
            m_closeRequest(window);
            return;
        }
        bool cancel = false;
        window.Form_QueryUnload(cancel);
        if (!cancel) {
            window.Form_Unload(cancel);
        }
        if (!cancel) {
            close(window);
        }
    });
}

WindowView *QtHost::view(const ui::Window &window) const
{
    const auto it = m_views.find(&window);
    return it == m_views.end() ? nullptr : it->second.data();
}

void QtHost::yield()
{
    QApplication::processEvents();
}

void QtHost::setBusy(bool busy)
{
    if (busy == m_busy) {
        return;
    }
    m_busy = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtHost::beep()
{
    QApplication::beep();
}

} // namespace uiqt
