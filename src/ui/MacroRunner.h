#pragma once
// Runs a macro: one user action a line, addressed by window and control names, through the
// scripted host. A line that cannot be carried out, or a prompt left unanswered, ends the run with
// "error line N: reason" in the transcript.

#include "ui/Forms.h"
#include "ui/ScriptedHost.h"

#include <QStringList>

#include <functional>

namespace ui
{

class MacroRunner
{
public:
    // mainWindow names the window whose menus a bare "menu NAME" line clicks.
    MacroRunner(Forms &forms, ScriptedHost &host, QString mainWindow);

    // Gives 0 when every line ran, 2 when a line failed.
    int run(const QStringList &lines);

    // Lists the names matching a Windows path with a wildcard name ("files" lines).
    void setFileLister(std::function<QStringList(const QString &pattern)> lister)
    {
        m_files = std::move(lister);
    }

private:
    struct Target {
        Window *window = nullptr;
        Control *control = nullptr;
    };

    void runLine(const QString &line);
    Target target(const QString &address) const;
    void select(const QString &address, const QString &rows);
    void click(const QString &address);
    void type(const QString &address, const QString &text);
    void key(const QString &address, const QString &code);
    void dump(const QString &address, bool rtf);
    void closeWindow(const QString &name);
    void replaceText(const QString &address, const QString &edit);
    void findText(const QString &address, const QString &term);
    void listFiles(const QString &pattern);

    Forms &m_forms;
    ScriptedHost &m_host;
    QString m_mainWindow;
    std::function<QStringList(const QString &)> m_files;
};

// Why a macro line failed; the runner writes it as "error line N: <reason>".
class MacroError : public std::runtime_error
{
public:
    explicit MacroError(const QString &reason)
        : std::runtime_error(reason.toStdString())
        , m_reason(reason)
    {
    }

    const QString &reason() const { return m_reason; }

private:
    QString m_reason;
};

} // namespace ui
