#pragma once
// The list of routes that Content\Routes.xml names: one row a DevString, shown as its display
// name, a tab and its folder, with the session's RouteNames and RouteFolders behind the rows.

#include <QString>

namespace core
{
struct Session;
}

namespace ui
{
class ListBox;
}

namespace routes
{

struct RouteCatalogue {
    QString path;
    QString text;
};

// Fills names (name, tab, folder) and folders (the folder alone) and the session's arrays. A
// catalogue the scan cannot follow ends the listing at the route it could not read.
RouteCatalogue ListRoutes(core::Session &session, ui::ListBox &names, ui::ListBox &folders);

} // namespace routes
