#include "routes/content_model/RouteListing.h"

#include "core/Services.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "core/Traps.h"
#include "routes/content_model/LocalisedName.h"
#include "routes/content_model/RowArrays.h"
#include "ui/ListBox.h"

using core::instr;
using core::instrRev;
using core::mid;

namespace routes
{

RouteCatalogue ListRoutes(core::Session &session, ui::ListBox &names, ui::ListBox &folders)
{
    constexpr auto blind = Qt::CaseInsensitive;
    RouteCatalogue catalogue;
    catalogue.path = session.RailSimPath + QStringLiteral("\\Content\\Routes.xml");
    catalogue.text = session.services.ReadFile(catalogue.path);
    const QString &text = catalogue.text;
    makeRows(session.RouteNames, 500);
    makeRows(session.RouteFolders, 500);
    int k = 0;
    core::silently([&] {
        int p = 1;
        for (;;) {
            const int hit = instr(p, text, QStringLiteral("<DevString"), blind);
            if (hit == 0) {
                break;
            }
            const int close = instr(hit, text, QStringLiteral("</DevString"), blind);
            const int open = instrRev(text, QStringLiteral(">"), close - 1);
            const QString folder = mid(text, open + 1, close - open - 1);
            const LocalisedName name = readLocalisedName(text, close);
            session.RouteFolders[k] = folder;
            folders.addItem(folder);
            names.addItem(name.name + QLatin1Char('\t') + folder);
            session.RouteNames[k] = name.name;
            p = name.lastClose;
            ++k;
            growRows(session.RouteNames, k, 50);
            growRows(session.RouteFolders, k, 50);
        }
    });
    session.RouteNames.resize(k);
    session.RouteFolders.resize(k);
    return catalogue;
}

} // namespace routes
