#include "routes/content_model/ScenarioListing.h"

#include "core/ConverterBridge.h"
#include "core/ReplaceBackup.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "core/Traps.h"
#include "routes/content_model/CatalogueEntry.h"
#include "routes/content_model/LocalisedName.h"
#include "routes/content_model/RowArrays.h"
#include "ui/FileList.h"

using core::instr;
using core::instrRev;
using core::mid;

namespace routes
{

namespace
{

constexpr auto blind = Qt::CaseInsensitive;

// A run-time failure in the listing: bad arguments and subscripts are passed over, anything else
// is shown, and the listing goes on with its next statement either way.
template <typename F> void step(core::Session &session, F &&statement)
{
    try {
        core::passOver({platform::InvalidArgument, platform::SubscriptOutOfRange}, statement);
    } catch (const platform::Failure &failure) {
        session.host.msgBox(QStringLiteral("An Error ") + failure.description()
                                + QStringLiteral(" occurred while\r\nchecking for Scenarios."),
                            ui::Buttons::OK,
                            ui::Icon::Exclamation,
                            session.host.appTitle());
    }
}

void clearRows(ui::ListBox &list)
{
    for (int row = list.listCount() - 1; row >= 0; --row) {
        list.removeItem(row);
    }
}

bool askToRemove(core::Session &session, const QString &folder)
{
    return session.host.msgBox(QStringLiteral("The Scenario Folder ") + folder
                                   + QStringLiteral(" listed in Scenarios.bin does not exist!\r\n"
                                                    "Do you wish to remove this invalid entry from "
                                                    "Scenarios.bin?"),
                               ui::Buttons::YesNo,
                               ui::Icon::Exclamation,
                               session.host.appTitle())
        == ui::Answer::Yes;
}

// Writes the mended catalogue back over Scenarios.bin, after keeping the old one.
void rewriteCatalogue(core::Session &session, const QString &text, const QString &routePath)
{
    const QString xmlPath = session.appFolder + QStringLiteral("\\TempFiles\\Scenarios.xml");
    session.services.WriteFile(xmlPath, text);
    session.CurrentFile = routePath + QStringLiteral("\\Scenarios.bin");
    (void)core::ReplaceBackup(session.paths).keep(session.CurrentFile).orRaise();
    core::ConverterBridge(session).toBin(xmlPath, session.CurrentFile);
}

// Converts the route's Scenarios.bin into TempFiles and gives its text; a catalogue the converter
// rejects leaves the copy of an earlier listing, or none. xmlName: the copy's name.
QString readCatalogue(core::Session &session, const QString &routePath, QString &xmlName)
{
    session.CurrentFile = routePath + QStringLiteral("\\Scenarios.bin");
    const QString fileName =
        mid(session.CurrentFile, instrRev(session.CurrentFile, QStringLiteral("\\")) + 1);
    xmlName = core::left(fileName, instrRev(fileName, QStringLiteral("."))) + QStringLiteral("xml");
    const QString xmlPath = session.appFolder + QStringLiteral("\\TempFiles\\Scenarios.xml");
    step(session, [&] { core::ConverterBridge(session).toXml(session.CurrentFile, xmlPath); });
    return session.services.ReadFile(xmlPath);
}

// A scenario whose folder is on disk becomes row k of the lists and the session's arrays.
void addScenario(core::Session &session,
                 const ScenarioLists &lists,
                 const QString &folder,
                 const QString &name,
                 int k)
{
    session.ScenarioFolders[k] = folder;
    if (!session.PackScenarioMode) {
        lists.folders.addItem(folder);
    }
    lists.names.addItem(name + QLatin1Char('\t') + folder);
    session.ScenarioNames[k] = name;
    growRows(session.ScenarioFolders, k + 1, 50);
    growRows(session.ScenarioNames, k + 1, 50);
}

} // namespace

QString ListScenarios(core::Session &session, const ScenarioLists &lists, QString &routePath)
{
    lists.files.setVisible(false);
    clearRows(lists.names);
    clearRows(lists.folders);
    makeRows(session.ScenarioFolders, 50);
    makeRows(session.ScenarioNames, 50);
    for (const int row : lists.routes.selectedRows()) {
        step(session, [&] {
            routePath = session.RailSimPath + QStringLiteral("\\content\\Routes\\")
                + rowAt(session.RouteFolders, row);
        });
    }
    QString xmlName;
    QString text = readCatalogue(session, routePath, xmlName);

    int p = 1;
    int k = 0;
    bool removeAll = false;
    bool changed = false;
    int close = 0;
    QString folder;
    QString name;
    while (p > 0) {
        p = instr(p, text, QStringLiteral("<DevString"), blind);
        if (p == 0) {
            break;
        }
        step(session, [&] {
            close = instr(p, text, QStringLiteral("</DevString"), blind);
            const int open = instrRev(text, QStringLiteral(">"), close - 1);
            folder = mid(text, open + 1, close - open - 1);
        });
        QString scenarioPath = routePath + QStringLiteral("\\Scenarios\\") + folder;
        if (session.services.FolderExists(scenarioPath)) {
            step(session, [&] { name = readLocalisedName(text, close).name; });
            addScenario(session, lists, folder, name, k);
            p = close;
            ++k;
        } else if (removeAll || askToRemove(session, folder)) {
            removeAll = true;
            changed = true;
            const QString before = text;
            step(session, [&] { text = RemoveScenarioEntry(text, folder); });
            if (text == before) {
                p += 10; // an entry the cut cannot find would be met again and again
            }
        } else {
            p += 10;
        }
    }
    step(session, [&] {
        cutRows(session.ScenarioFolders, k - 1);
        cutRows(session.ScenarioNames, k - 1);
    });
    if (changed) {
        step(session, [&] { rewriteCatalogue(session, text, routePath); });
    }
    return xmlName;
}

} // namespace routes
