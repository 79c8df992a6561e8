#include "routes/frmDelRoute.h"

#include "routes/content_model/RouteListing.h"
#include "routes/content_model/ScenarioListing.h"

namespace routes
{

frmDelRoute::frmDelRoute(core::Session &session, ui::Forms &forms)
    : Window(QStringLiteral("frmDelRoute"))
    , m_session(session)
    , m_forms(forms)
    , m_walk(session, File1, [this](const QString &text) { showProgress(text); })
{
    setCaption(QStringLiteral("Select Route"));
    setGeometry(0, 0, 11880, 8400);
    registerControls();
    connectHandlers();
    setUpStatusBar();
}

void frmDelRoute::registerControls()
{
    add(QStringLiteral("Label1"), Label1).setCaption(QStringLiteral("Route Name"));
    add(QStringLiteral("List1"), List1);
    add(QStringLiteral("Label2"), Label2).setCaption(QStringLiteral("Route Folder"));
    add(QStringLiteral("List2"), List2);
    add(QStringLiteral("Label3"), Label3).setCaption(QStringLiteral("Scenario Name"));
    add(QStringLiteral("List3"), List3);
    add(QStringLiteral("Label4"), Label4).setCaption(QStringLiteral("Scenario Folder"));
    add(QStringLiteral("List4"), List4);
    add(QStringLiteral("List5"), List5);
    add(QStringLiteral("File1"), File1);
    add(QStringLiteral("Command1"), Command1)
        .setCaption(QStringLiteral("List Scenarios in Selected Route"));
    add(QStringLiteral("Command2"), Command2)
        .setCaption(QStringLiteral("Delete Selected Scenario"));
    add(QStringLiteral("Command3"), Command3)
        .setCaption(QStringLiteral("List Stock used by selected Scenario"));
    add(QStringLiteral("Command4"), Command4).setCaption(QStringLiteral("Check Selected Route"));
    add(QStringLiteral("Command5"), Command5).setCaption(QStringLiteral("Add to Package"));
    add(QStringLiteral("Command6"), Command6).setCaption(QStringLiteral("Process Package"));
    add(QStringLiteral("Command7"), Command7).setCaption(QStringLiteral("Substitute Scenery Item"));
    add(QStringLiteral("Command8"), Command8)
        .setCaption(QStringLiteral("Package this Routes Assets"));
    add(QStringLiteral("Command9"), Command9).setCaption(QStringLiteral("Clone Route"));
    add(QStringLiteral("Command10"), Command10).setCaption(QStringLiteral("&Abort"));
    add(QStringLiteral("OKButton"), OKButton).setCaption(QStringLiteral("Delete Selected Route"));
    add(QStringLiteral("CancelButton"), CancelButton).setCaption(QStringLiteral("&Exit"));
    add(QStringLiteral("StatusBar1"), StatusBar1);

    // The folder lists only carry the rows behind the names; the file list shows a walk.
    for (ui::Control *hidden : {static_cast<ui::Control *>(&Label2),
                                static_cast<ui::Control *>(&List2),
                                static_cast<ui::Control *>(&Label4),
                                static_cast<ui::Control *>(&List4),
                                static_cast<ui::Control *>(&List5),
                                static_cast<ui::Control *>(&File1),
                                static_cast<ui::Control *>(&Command8)}) {
        hidden->setVisible(false);
    }
    List5.setSorted(true);
}

void frmDelRoute::connectHandlers()
{
    List1.onClick([this] { List1_Click(); });
    Command1.onClick([this] { Command1_Click(); });
    Command4.onClick([this] { Command4_Click(); });
    Command10.onClick([this] { Command10_Click(); });
    CancelButton.onClick([this] { CancelButton_Click(); });
}

void frmDelRoute::setUpStatusBar()
{
    ui::StatusPanel processing;
    processing.key = QStringLiteral("Processing");
    processing.text = QStringLiteral("Processing");
    processing.autoSize = true;
    processing.minWidth = 2000;
    StatusBar1.addPanel(processing);
    ui::StatusPanel time;
    time.key = QStringLiteral("Time panel");
    time.style = ui::StatusPanel::Style::Time;
    StatusBar1.addPanel(time);
}

void frmDelRoute::Form_Load()
{
    applyMode();
    const RouteCatalogue catalogue = ListRoutes(m_session, List1, List2);
    m_routesXml = catalogue.text;
    m_routesXmlPath = catalogue.path;
}

void frmDelRoute::applyMode()
{
    if (m_session.PackScenarioMode) {
        for (ui::Button *button : {&Command4, &OKButton, &Command2, &Command3}) {
            button->setVisible(false);
        }
        Command5.setVisible(true);
        Command6.setVisible(true);
        return;
    }
    Command5.setVisible(false);
    Command6.setVisible(false);
    if (m_session.DelRouteForPack) {
        setCaption(QStringLiteral("Select Route to Package"));
        OKButton.setCaption(QStringLiteral("Package Selected Route"));
        Command8.setVisible(true);
    } else {
        setCaption(QStringLiteral("Select Route"));
        OKButton.setCaption(QStringLiteral("Delete Selected Route"));
    }
}

void frmDelRoute::Form_Unload(bool &cancel)
{
    (void)cancel;
    m_session.PackScenarioMode = false;
}

void frmDelRoute::List1_Click()
{
    ListScenarios();
}

void frmDelRoute::Command1_Click()
{
    ListScenarios();
}

void frmDelRoute::ListScenarios()
{
    m_scenariosXml =
        routes::ListScenarios(m_session, ScenarioLists{List1, List3, List4, File1}, m_routePath);
}

void frmDelRoute::Command10_Click()
{
    m_session.AbortRequested = true;
}

void frmDelRoute::CancelButton_Click()
{
    m_forms.unload(*this);
}

void frmDelRoute::showProgress(const QString &text)
{
    StatusBar1.setPanelText(1, text);
}

} // namespace routes
