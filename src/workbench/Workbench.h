#pragma once
// The program wired together: path map, services, session and windows over one host.

#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/Forms.h"

#include <memory>

namespace workbench
{

class frmEditor;

// The program's folders as host paths: its own folder (preferences.txt, TempFiles...) and the
// folder serz.exe is run from.
struct Folders {
    QString appFolder;
    QString systemFolder;
};

class Workbench
{
public:
    Workbench(ui::Host &host, const Folders &folders, const QString &commandLineFile);

    core::Session &session() { return m_session; }

    ui::Forms &forms() { return m_forms; }

    const platform::PathMap &paths() const { return m_paths; }

    // Loads the main window (its start-up runs) and shows it.
    frmEditor &start();

private:
    void defineWindows();

    platform::PathMap m_paths;
    core::Services m_services;
    core::Session m_session;
    ui::Forms m_forms;
};

} // namespace workbench
