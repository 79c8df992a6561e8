// The route check of frmDelRoute: walks the route's tiles and its listed scenarios' scenery for
// the shapes they place, then reports what is missing and, on request, what is used.

#include "authoring/frmReport.h"
#include "core/QuickSort.h"
#include "core/Services.h"
#include "core/Traps.h"
#include "routes/content_model/RowArrays.h"
#include "routes/frmDelRoute.h"

#include <array>

namespace routes
{

namespace
{

const QString lineBreak = QStringLiteral("\r\n");

bool ask(core::Session &session, const QString &question)
{
    return session.host.msgBox(
               question, ui::Buttons::YesNo, ui::Icon::Question, session.host.appTitle())
        == ui::Answer::Yes;
}

void clearRows(ui::ListBox &list)
{
    for (int row = list.listCount() - 1; row >= 0; --row) {
        list.removeItem(row);
    }
}

// Shows the report's list (or its text) under a caption, modally.
void showReport(ui::Forms &forms, const QString &caption, bool asText)
{
    authoring::frmReport &report = forms.get<authoring::frmReport>();
    report.RTB1.setVisible(asText);
    report.List1.setVisible(!asText);
    report.setCaption(caption);
    forms.show<authoring::frmReport>(true);
}

// Sorts rows 0 to bound - 1 of a list stored from row 1, after cutting it there, and gives the
// copy without equal neighbours.
QStringList sortedCopy(QStringList &rows, int count)
{
    cutRows(rows, count - 1);
    core::QuickSort(rows, 0, count - 1);
    return core::RemD2(rows);
}

} // namespace

void frmDelRoute::Command4_Click()
{
    core::silently([&] {
        m_session.ReportText.clear();
        m_session.services.DelAll(m_session.tempFiles());
        remakeTempFiles();
        const int row = List1.listIndex();
        const QString routeFolder = rowAt(m_session.RouteFolders, row);
        (void)rowAt(m_session.RouteNames, row);
        m_session.host.setBusy(true);
        File1.setPattern(QStringLiteral("*.bin"));
        File1.setVisible(true);
        if (walkRouteFolders(routeFolder) && walkScenarioScenery(routeFolder)) {
            m_shapeCopy = sortedCopy(m_walk.ShapeList, m_walk.shapeCount);
            m_walk.shapeCount = int(m_shapeCopy.size()) - 1;
            if (m_session.ReportText.isEmpty()) {
                m_session.ReportText = QStringLiteral("Route Scenery checked out OK");
            } else {
                m_session.ReportText += lineBreak + lineBreak
                    + QStringLiteral("(Note: Brakevan may not resolve some foreign characters, "
                                     "please advise with copy this report if any found)")
                    + lineBreak + lineBreak;
            }
            showReport(
                m_forms, QStringLiteral("Following item(s) were missing from this route:-"), false);
            offerShapeList(m_walk.shapeCount);
            if (ask(m_session,
                    QStringLiteral(
                        "Would you like to check for missing Texture/Animation & Script files?"))) {
                showMissingFiles();
            }
        }
        m_session.host.setBusy(false);
        m_session.AbortRequested = false;
    });
}

void frmDelRoute::remakeTempFiles() const
{
    core::passOver({platform::PathFileAccess},
                   [&] { m_session.services.MkDir(m_session.tempFiles()); });
}

// False when the user aborted; the flag is cleared then.
bool frmDelRoute::walkRouteFolders(const QString &routeFolder)
{
    struct Walked {
        const char16_t *folder;
        const char16_t *label;
    };

    static const std::array<Walked, 4> walked{{{u"\\Scenery", u"(Scenery Item)"},
                                               {u"\\Networks\\Loft Tiles", u"(Loft Item)"},
                                               {u"\\Networks\\Road Tiles", u"(Road Item)"},
                                               {u"\\Networks", u"(Track Item)"}}};
    const QString route =
        m_session.RailSimPath + QStringLiteral("\\Content\\Routes\\") + routeFolder;
    ui::ListBox &report = m_forms.get<authoring::frmReport>().List1;
    for (const Walked &step : walked) {
        m_walk.ListBlueprintRefs(
            route + QString::fromUtf16(step.folder), QString::fromUtf16(step.label), report);
        if (m_session.AbortRequested) {
            m_session.AbortRequested = false;
            return false;
        }
        remakeTempFiles();
    }
    return true;
}

bool frmDelRoute::walkScenarioScenery(const QString &routeFolder)
{
    const QString scenarios = m_session.RailSimPath + QStringLiteral("\\Content\\Routes\\")
        + routeFolder + QStringLiteral("\\Scenarios\\");
    ui::ListBox &report = m_forms.get<authoring::frmReport>().List1;
    for (const QString &scenario : List4.rows()) {
        QString scenery = scenarios + scenario + QStringLiteral("\\Scenery");
        if (m_session.services.FolderExists(scenery)) {
            remakeTempFiles();
            m_walk.ListBlueprintRefs(scenery, QStringLiteral("(Scenery Item)"), report);
        }
    }
    if (m_session.AbortRequested) {
        m_session.AbortRequested = false;
        return false;
    }
    return true;
}

void frmDelRoute::offerShapeList(int bound)
{
    if (!ask(m_session,
             QStringLiteral("Do you wish to view a list of Shapes used by this route?"))) {
        return;
    }
    ui::ListBox &rows = m_forms.get<authoring::frmReport>().List1;
    clearRows(rows);
    for (int row = 1; row <= bound; ++row) {
        rows.addItem(rowAt(m_shapeCopy, row));
    }
    m_forms.get<authoring::frmReport>().setCaption(
        QStringLiteral("Following item(s) were used by this route:-"));
    m_forms.show<authoring::frmReport>(true);
}

void frmDelRoute::showMissingFiles()
{
    m_session.ReportText = QStringLiteral("Texture Check:-") + lineBreak + lineBreak;
    File1.setVisible(false);
    clearRows(List3);
    for (int row = 1; row <= m_walk.shapeCount; ++row) {
        List3.addItem(rowAt(m_shapeCopy, row));
    }
    m_walk.CheckShapeFiles(List3);
    if (m_session.AbortRequested) {
        m_session.AbortRequested = false;
        return;
    }
    if (m_session.ReportText.size() > 25) {
        authoring::frmReport &report = m_forms.get<authoring::frmReport>();
        report.RTB1.setText(m_session.ReportText);
        showReport(m_forms, QStringLiteral("Missing Files:-"), true);
    }
    m_textureCopy = sortedCopy(m_walk.TextureList, m_walk.textureCount);
    m_walk.textureCount = int(m_textureCopy.size()) - 1;
    offerTextureList();
}

void frmDelRoute::offerTextureList()
{
    if (!ask(m_session,
             QStringLiteral("Do you wish to view a list of Textures used by this route?"))) {
        return;
    }
    authoring::frmReport &report = m_forms.get<authoring::frmReport>();
    clearRows(report.List1);
    // Rows up to the shape count, as the list has always been filled.
    for (int row = 1; row <= m_walk.shapeCount; ++row) {
        report.List1.addItem(rowAt(m_textureCopy, row));
    }
    report.setCaption(QStringLiteral("Following textures were used by this route:-"));
    report.RTB1.setVisible(false);
    report.List1.setVisible(true);
    m_forms.show<authoring::frmReport>(true);
}

} // namespace routes
