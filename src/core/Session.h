#pragma once
// The session: the variables every window reads and writes for the whole run, the program's
// folders, and the services and host they work through. One object, handed to every window.

#include <QString>
#include <QStringList>

namespace platform
{
class PathMap;
}

namespace ui
{
class Host;
}

namespace core
{

class Services;

struct Session {
    Session(Services &servicesIn, ui::Host &hostIn, const platform::PathMap &pathsIn)
        : services(servicesIn)
        , host(hostIn)
        , paths(pathsIn)
    {
    }

    Services &services;
    ui::Host &host;
    const platform::PathMap &paths;

    // The program's own folders, as Windows paths without a trailing backslash.
    QString appFolder; // preferences.txt, TempFiles, Templates, Reports...
    QString systemFolder; // where serz.exe is run from by bare name
    QString commandLine; // the file named on the command line, as given

    // Start-up, preferences and the open commands.
    QString RailSimPath;
    QString CurrentFile;
    bool FileGiven = false;
    QString CurrentExt;
    QString TempXmlPath;
    bool DefaultEditorIsTree = false;
    int EditorChoice = 0;
    QString GraphicsEditorPath;
    QString ViewerPath;
    QString AcrobatPath;
    QString ReservedText;

    // Routes and scenarios, indexed by list row.
    QStringList RouteNames;
    QStringList RouteFolders;
    QStringList ScenarioFolders;
    QStringList ScenarioNames;
    QString ReportText;
    bool AbortRequested = false;
    QString PackageFolder;
    int MarkerMode = 0;
    bool DelRouteForPack = false;
    bool PackScenarioMode = false;
    int SelRouteIndex = 0;

    QString tempFiles() const { return appFolder + QStringLiteral("\\TempFiles"); }
};

} // namespace core
