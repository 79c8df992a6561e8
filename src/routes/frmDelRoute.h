#pragma once
// The route and scenario chooser: lists the routes of Routes.xml and the scenarios of the chosen
// route, and from there checks a route; the menu that opens it picks its mode (check, package a
// route, package scenarios).

#include "core/Session.h"
#include "routes/RouteWalk.h"
#include "ui/Button.h"
#include "ui/FileList.h"
#include "ui/Forms.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/StatusBar.h"
#include "ui/Window.h"

namespace routes
{

class frmDelRoute : public ui::Window
{
public:
    frmDelRoute(core::Session &session, ui::Forms &forms);

    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

    ui::Label Label1; // "Route Name"
    ui::Label Label2; // "Route Folder"
    ui::Label Label3; // "Scenario Name"
    ui::Label Label4; // "Scenario Folder"
    ui::ListBox List1;
    ui::ListBox List2;
    ui::ListBox List3;
    ui::ListBox List4;
    ui::ListBox List5;
    ui::FileList File1;
    ui::Button Command1;
    ui::Button Command2;
    ui::Button Command3;
    ui::Button Command4;
    ui::Button Command5;
    ui::Button Command6;
    ui::Button Command7;
    ui::Button Command8;
    ui::Button Command9;
    ui::Button Command10;
    ui::Button OKButton;
    ui::Button CancelButton;
    ui::StatusBar StatusBar1;

    void Command1_Click();
    void Command4_Click();
    void Command10_Click();
    void CancelButton_Click();
    void List1_Click();

    // The walk of the route check and the lists it keeps between checks.
    RouteWalk &walk() { return m_walk; }

    // The route listed last, and the catalogue text the window read on opening.
    const QString &routePath() const { return m_routePath; }

    const QString &routesXml() const { return m_routesXml; }

    const QString &routesXmlPath() const { return m_routesXmlPath; }

    const QString &scenariosXml() const { return m_scenariosXml; }

private:
    void registerControls();
    void connectHandlers();
    void setUpStatusBar();
    void applyMode();
    void ListScenarios();
    void showProgress(const QString &text);

    // The steps of the route check.
    void remakeTempFiles() const;
    bool walkRouteFolders(const QString &routeFolder);
    bool walkScenarioScenery(const QString &routeFolder);
    void offerShapeList(int bound);
    void showMissingFiles();
    void offerTextureList();

    core::Session &m_session;
    ui::Forms &m_forms;
    RouteWalk m_walk;
    QString m_routePath;
    QString m_routesXml;
    QString m_routesXmlPath;
    QString m_scenariosXml;
    QStringList m_shapeCopy;
    QStringList m_textureCopy;
};

} // namespace routes
