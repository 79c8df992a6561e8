#pragma once
// The list of a route's scenarios from its Scenarios.bin: one row a DevString whose folder is on
// disk, with the session's ScenarioFolders and ScenarioNames behind the rows. Entries whose folder
// is gone are offered for removal; one Yes removes them all and rewrites the catalogue once.

#include <QString>

namespace core
{
struct Session;
}

namespace ui
{
class FileList;
class ListBox;
} // namespace ui

namespace routes
{

struct ScenarioLists {
    ui::ListBox &routes; // the route rows; the selected one is listed
    ui::ListBox &names; // name, tab, folder
    ui::ListBox &folders; // the folder alone, unless scenarios are being packaged
    ui::FileList &files; // hidden while listing
};

// routePath: the route listed last (a Windows path), kept when no route is selected. Gives the
// name of the catalogue's XML copy in TempFiles ("Scenarios.xml").
QString ListScenarios(core::Session &session, const ScenarioLists &lists, QString &routePath);

} // namespace routes
