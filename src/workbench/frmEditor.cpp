#include "workbench/frmEditor.h"

#include "core/Preferences.h"
#include "core/Services.h"
#include "core/Traps.h"
#include "core/platform/Cp1252.h"
#include "core/platform/Registry.h"

using namespace Qt::StringLiterals;

namespace workbench
{

namespace
{

const QString registryKey = u"Software\\Rail Simulator\\Packager Manager\\Installation"_s;
const QString converterMissing =
    u"The required file SERZ.EXE could not be found on your system. It is required to run this program, see the Help file for details."_s;

} // namespace

frmEditor::frmEditor(core::Session &session, ui::Forms &forms)
    : Window(u"frmEditor"_s)
    , m_session(session)
    , m_forms(forms)
    , m_bridge(session)
{
    setCaption(u"RS bin file editor and texture viewer"_s);
    setGeometry(0, 0, 12000, 9000);
    registerControls();
    registerTreePage();
    registerMenus();
    connectHandlers();
    connectTreePage();
    connectTextures();
}

frmEditor::~frmEditor() = default;

void frmEditor::registerControls()
{
    SSTab1.setTabCaptions({u"Brakevan Editor"_s, u"XML Editor"_s});
    add(u"SSTab1"_s, SSTab1);
    add(u"Frame1"_s, Frame1).setCaption(u"Brakevan Editor"_s);
    place(u"Frame1"_s, {u"SSTab1"_s, 0});
    add(u"Text1"_s, Text1);
    add(u"Label2"_s, Label2);
    add(u"Command1"_s, Command1).setCaption(u"Highlight XML"_s);
    add(u"Command7"_s, Command7).setCaption(u"Show Image"_s);
    add(u"RichTextBox1"_s, RichTextBox1);
    for (const QString &name :
         {u"Text1"_s, u"Label2"_s, u"Command1"_s, u"Command7"_s, u"RichTextBox1"_s}) {
        place(name, {u"Frame1"_s});
    }
    // The text of a file wants the room of the page.
    place(u"RichTextBox1"_s, {u"Frame1"_s, -1, -1, -1, -1, 6000});
    Command7.setVisible(false);
    add(u"StatusBar1"_s, StatusBar1);
    StatusBar1.addPanel();
}

void frmEditor::registerTreePage()
{
    add(u"Frame2"_s, Frame2).setCaption(u"XML Editor"_s);
    place(u"Frame2"_s, {u"SSTab1"_s, 1});
    add(u"trevwContents"_s, trevwContents);
    add(u"lblAttributes"_s, lblAttributes).setCaption(u"Attributes"_s);
    add(u"lstAttributes"_s, lstAttributes);
    add(u"cmdAdd"_s, cmdAdd).setCaption(u"&Add"_s);
    add(u"cmdDel"_s, cmdDel).setCaption(u"&Remove"_s);
    add(u"cmdRename"_s, cmdRename).setCaption(u"R&ename"_s);
    add(u"lblValue"_s, lblValue).setCaption(u"Value"_s);
    add(u"txtAttributeValue"_s, txtAttributeValue);
    add(u"lblCharacters"_s, lblCharacters).setCaption(u"Text"_s);
    add(u"txtCharacters"_s, txtCharacters);
    txtCharacters.setMultiLine(true);
    add(u"Frame3"_s, Frame3).setCaption(u"Search"_s);
    for (const QString &name : {u"trevwContents"_s,
                                u"lblAttributes"_s,
                                u"lstAttributes"_s,
                                u"cmdAdd"_s,
                                u"cmdDel"_s,
                                u"cmdRename"_s,
                                u"lblValue"_s,
                                u"txtAttributeValue"_s,
                                u"lblCharacters"_s,
                                u"txtCharacters"_s,
                                u"Frame3"_s}) {
        place(name, {u"Frame2"_s});
    }
    place(u"trevwContents"_s, {u"Frame2"_s, -1, -1, -1, -1, 3600});
    add(u"Text2"_s, Text2);
    add(u"Check1"_s, Check1).setCaption(u"Whole Word Only"_s);
    add(u"Command2"_s, Command2).setCaption(u"Find"_s);
    add(u"Command3"_s, Command3).setCaption(u"Find All"_s);
    add(u"Command4"_s, Command4).setCaption(u"Find in Text"_s);
    add(u"Text3"_s, Text3);
    add(u"Command5"_s, Command5).setCaption(u"Replace"_s);
    add(u"Command6"_s, Command6).setCaption(u"Replace All"_s);
    for (const QString &name : {u"Text2"_s,
                                u"Check1"_s,
                                u"Command2"_s,
                                u"Command3"_s,
                                u"Command4"_s,
                                u"Text3"_s,
                                u"Command5"_s,
                                u"Command6"_s}) {
        place(name, {u"Frame3"_s});
    }
    Frame2.setVisible(false);
}

void frmEditor::registerMenus()
{
    struct Item {
        const char16_t *name;
        ui::Menu &menu;
        const char16_t *parent;
        const char16_t *caption;
    };

    const Item items[] = {
        {u"mnuFiles", mnuFiles, u"", u"&File"},
        {u"mnuOpenRS", mnuOpenRS, u"mnuFiles", u"Open RailSim File"},
        {u"mnuSaveRS", mnuSaveRS, u"mnuFiles", u"Save RailSim File"},
        {u"mnuXML", mnuXML, u"mnuFiles", u"Open .xml/.cost/.tgt/.proxyxml file"},
        {u"mnuSavexml", mnuSavexml, u"mnuFiles", u"Save .xml/.cost/.tgt file"},
        {u"mnuSaveAs", mnuSaveAs, u"mnuFiles", u"Save .xml As"},
        {u"mnuOpenTex", mnuOpenTex, u"mnuFiles", u"Open .TgPcDx Texture Files"},
        {u"mnuPrint", mnuPrint, u"mnuFiles", u"Print"},
        {u"mnuExit", mnuExit, u"mnuFiles", u"&Exit"},
        {u"mnuFile", mnuFile, u"", u"&File"},
        {u"mnuFileOpen", mnuFileOpen, u"mnuFile", u"Open RailSim File"},
        {u"mnuFileSave", mnuFileSave, u"mnuFile", u"Save RailSim File"},
        {u"mnuOpenXCT", mnuOpenXCT, u"mnuFile", u"Open .xml/.cost/.tgt/.proxyxml file"},
        {u"mnuSaveXCT", mnuSaveXCT, u"mnuFile", u"Save .xml/.cost/.tgt file"},
        {u"mnuFileSaveAs", mnuFileSaveAs, u"mnuFile", u"Save .xml As"},
        {u"mnuFileExit", mnuFileExit, u"mnuFile", u"E&xit"},
        {u"mnuNodePopUp", mnuNodePopUp, u"", u"Nodes"},
        {u"mnuNodePopUpNew", mnuNodePopUpNew, u"mnuNodePopUp", u"New Child Node"},
        {u"mnuNodePopupRename", mnuNodePopupRename, u"mnuNodePopUp", u"Rename Node"},
        {u"mnuNodePopUpDelete", mnuNodePopUpDelete, u"mnuNodePopUp", u"Delete Node"},
        {u"mnuEditCopy", mnuEditCopy, u"mnuNodePopUp", u"Copy"},
        {u"mnuEditPaste", mnuEditPaste, u"mnuNodePopUp", u"Paste"},
        {u"mnuSearch", mnuSearch, u"", u"Search and Replace"},
        {u"mnuFind", mnuFind, u"mnuSearch", u"&Find"},
        {u"mnuSwap", mnuSwap, u"mnuSearch", u"Swap Track"},
        {u"mnuConversions", mnuConversions, u"", u"Conversions"},
        {u"mnuDDS", mnuDDS, u"mnuConversions", u"Convert .TgPcDx to .dds"},
        {u"mnuView", mnuView, u"mnuConversions", u"View .dds File"},
        {u"mnuEditDDS", mnuEditDDS, u"mnuConversions", u"Edit .dds File"},
        {u"mnuDDStoKrs", mnuDDStoKrs, u"mnuConversions", u"Convert .dds to .TgPcDx"},
        {u"mnuTime", mnuTime, u"mnuConversions", u"Convert RS time to hrs/mins"},
        {u"mnuTools", mnuTools, u"", u"Tools"},
        {u"mnuDelRoute", mnuDelRoute, u"mnuTools", u"Check Routes or Scenarios"},
        {u"mnuMultiMarker", mnuMultiMarker, u"mnuTools", u"Convert  Marker files"},
        {u"mnuDCSVnew", mnuDCSVnew, u"mnuTools", u"DCSV Precision"},
        {u"mnuPackAss", mnuPackAss, u"mnuTools", u"Package Assets"},
        {u"mnuReskin", mnuReskin, u"mnuTools", u"Package Reskins"},
        {u"mnuPack", mnuPack, u"mnuTools", u"Package Route"},
        {u"mnuPackSce", mnuPackSce, u"mnuTools", u"Package Scenarios"},
        {u"mnuDeveloper", mnuDeveloper, u"mnuTools", u"Set Up Developer Folder"},
        {u"mnuDevFolders", mnuDevFolders, u"mnuTools", u"Set Up Sub- Folders"},
        {u"mnuCheckXML", mnuCheckXML, u"mnuTools", u"Check Routes.xml file"},
        {u"mnuTgpcdx", mnuTgpcdx, u"mnuTools", u"TgPcDx Viewer"},
        {u"mnuLists", mnuLists, u"mnuTools", u"Edit Assets"},
        {u"mnuQuickstep", mnuQuickstep, u"mnuTools", u"Edit Scenarios"},
        {u"mnuEasy", mnuEasy, u"", u"Easy Blueprints"},
        {u"mnuLoco", mnuLoco, u"mnuEasy", u"Loco Folders"},
        {u"mnuMarkN", mnuMarkN, u"mnuEasy", u"Markers - Named"},
        {u"mnuMarkS", mnuMarkS, u"mnuEasy", u"Markers - Series"},
        {u"mnuRoute", mnuRoute, u"mnuEasy", u"Route Template"},
        {u"mnuRouteInfo", mnuRouteInfo, u"mnuEasy", u"Add Route Description"},
        {u"mnuMap", mnuMap, u"mnuEasy", u"Add Route Loading Picture"},
        {u"mnuOptions", mnuOptions, u"", u"Options"},
        {u"mnuClear", mnuClear, u"mnuOptions", u"Clear Screen"},
        {u"mnuCTF", mnuCTF, u"mnuOptions", u"Clear Temp Files"},
        {u"mnuReadWrite", mnuReadWrite, u"mnuOptions", u"Make all RS files Read/Write"},
        {u"mnuSelDefEdit", mnuSelDefEdit, u"mnuOptions", u"Select Default Editor"},
        {u"mnuAcro", mnuAcro, u"mnuOptions", u"Acrobat Reader Path"},
        {u"mnuRSPath", mnuRSPath, u"mnuOptions", u"Rail Simulator Path"},
        {u"mnuIRF", mnuIRF, u"mnuOptions", u"Texture Editor Path"},
        {u"mnuURS", mnuURS, u"mnuOptions", u"Use Brakevan Editor this session only"},
        {u"mnuUXML", mnuUXML, u"mnuOptions", u"Use XML Editor this session only"},
        {u"mnuViewer", mnuViewer, u"mnuOptions", u"Viewer Path"},
        {u"mnuHelp", mnuHelp, u"", u"Help"},
        {u"mnuContents", mnuContents, u"mnuHelp", u"Contents"},
        {u"mnuAbout", mnuAbout, u"mnuHelp", u"About"},
    };
    for (const Item &item : items) {
        addMenu(QString::fromUtf16(item.name),
                item.menu,
                QString::fromUtf16(item.parent),
                QString::fromUtf16(item.caption));
    }
}

void frmEditor::connectHandlers()
{
    mnuOpenRS.onClick([this] { mnuOpenRS_Click(); });
    mnuSaveRS.onClick([this] { mnuSaveRS_Click(); });
    mnuXML.onClick([this] { mnuXML_Click(); });
    mnuSavexml.onClick([this] { mnuSavexml_Click(); });
    mnuSaveAs.onClick([this] { mnuSaveAs_Click(); });
    mnuPrint.onClick([this] { mnuPrint_Click(); });
    mnuExit.onClick([this] { mnuExit_Click(); });
    mnuFileOpen.onClick([this] { mnuFileOpen_Click(); });
    mnuFileSave.onClick([this] { mnuFileSave_Click(); });
    mnuOpenXCT.onClick([this] { mnuOpenXCT_Click(); });
    mnuSaveXCT.onClick([this] { mnuSaveXCT_Click(); });
    mnuFileSaveAs.onClick([this] { mnuFileSaveAs_Click(); });
    mnuFileExit.onClick([this] { mnuFileExit_Click(); });
    mnuFind.onClick([this] { mnuFind_Click(); });
    mnuDelRoute.onClick([this] { mnuDelRoute_Click(); });
    mnuCheckXML.onClick([this] { mnuCheckXML_Click(); });
    mnuClear.onClick([this] { mnuClear_Click(); });
    mnuCTF.onClick([this] { mnuCTF_Click(); });
    mnuReadWrite.onClick([this] { mnuReadWrite_Click(); });
    mnuSelDefEdit.onClick([this] { mnuSelDefEdit_Click(); });
    mnuAcro.onClick([this] { mnuAcro_Click(); });
    mnuRSPath.onClick([this] { mnuRSPath_Click(); });
    mnuIRF.onClick([this] { mnuIRF_Click(); });
    mnuURS.onClick([this] { mnuURS_Click(); });
    mnuUXML.onClick([this] { mnuUXML_Click(); });
    mnuViewer.onClick([this] { mnuViewer_Click(); });
    mnuContents.onClick([this] { mnuContents_Click(); });
    mnuAbout.onClick([this] { mnuAbout_Click(); });
    Command1.onClick([this] { Command1_Click(); });
    SSTab1.onClick([this] { SSTab1_Click(); });
}

void frmEditor::Form_Load()
{
    Tree.TreeLoaded = false;
    Tree.TreeFile = m_session.appFolder + u"\\undefined.xml"_s;
    newTreeDocument();
    mnuEditCopy.setEnabled(false);
    mnuEditPaste.setEnabled(false);
    Frame1.setVisible(true);
    Frame2.setVisible(false);
    mnuFiles.setVisible(true);
    mnuFile.setVisible(false);
    mnuNodePopUp.setVisible(false);
    readPreferences();
    SSTab1.setTab(m_session.DefaultEditorIsTree ? 1 : 0);
    host().yield();
    QString tempFiles = m_session.tempFiles();
    if (!m_session.services.FolderExists(tempFiles)) {
        m_session.services.MkDir(m_session.tempFiles());
    }
    findGame();
    bool found = false;
    findConverter(found);
    if (!found) {
        return;
    }
    buildCaption(caption());
    if (!m_session.commandLine.isEmpty()) {
        QString name = m_session.commandLine;
        if (name.startsWith(u'"')) {
            name.remove(0, 1);
        }
        if (name.endsWith(u'"')) {
            name.chop(1);
        }
        m_session.CurrentFile = name;
        m_session.FileGiven = true;
        if (!m_session.CurrentFile.isEmpty()) {
            openByFileKind();
        }
    }
    setUpStatusBar();
}

void frmEditor::readPreferences()
{
    const QString path = m_session.appFolder + u"\\preferences.txt"_s;
    if (!m_session.services.FileExists(path)) {
        return;
    }
    const std::optional<core::Preferences> prefs =
        core::parsePreferences(m_session.services.ReadFile(path));
    if (!prefs) {
        return;
    }
    m_session.GraphicsEditorPath = prefs->GraphicsEditorPath;
    m_session.ViewerPath = prefs->ViewerPath;
    m_session.RailSimPath = prefs->RailSimPath;
    m_session.DefaultEditorIsTree = prefs->DefaultEditorIsTree;
    m_session.AcrobatPath = prefs->AcrobatPath;
    if (!prefs->ReservedText.isEmpty()) {
        m_session.ReservedText = prefs->ReservedText;
    }
    setGeometry(prefs->left, prefs->top, prefs->width, prefs->height);
}

// The registry first, then the default installation folder, which only decides whether to ask.
void frmEditor::findGame()
{
    if (m_session.RailSimPath.isEmpty()) {
        core::resumeNext([&] {
            m_session.RailSimPath =
                m_session.services
                    .GetRegValue(platform::RegistryRoot::LocalMachine, registryKey, QString())
                    .toString();
        });
    }
    if (m_session.RailSimPath.isEmpty()) {
        const QString railSim = u"c:\\program files\\rail simulator\\railsim.exe"_s;
        if (!m_session.services.FileExists(railSim) && !m_session.services.FileExists(railSim)) {
            mnuRSPath_Click();
            host().yield();
        }
    }
}

void frmEditor::findConverter(bool &found)
{
    host().yield();
    core::Services &services = m_session.services;
    const QString target = m_session.systemFolder + u"\\serz.exe"_s;
    found = true;
    if (services.FileExists(target)) {
        return;
    }
    for (const QString &candidate : {m_session.RailSimPath + u"\\serz.exe"_s,
                                     m_session.RailSimPath + u"\\Packager\\serz.exe"_s}) {
        if (services.FileExists(candidate)) {
            services.FileCopy(candidate, target);
            return;
        }
    }
    found = false;
    host().msgBox(converterMissing, ui::Buttons::OK, ui::Icon::Exclamation, host().appTitle());
}

void frmEditor::buildCaption(const QString &start)
{
    setCaption(start + u"  Version "_s + QStringLiteral(BV_VERSION_MAJOR) + u"."_s
               + QStringLiteral(BV_VERSION_MINOR) + u"."_s + QStringLiteral(BV_VERSION_PATCH)
               + u"   "_s + u"Rail Simulator path in use is - "_s + m_session.RailSimPath);
}

void frmEditor::setUpStatusBar()
{
    StatusBar1.addPanel();
    StatusBar1.addPanel();
    StatusBar1.setPanel(
        1, {u"Processing"_s, u"Processing"_s, ui::StatusPanel::Style::Text, true, 2000});
    StatusBar1.setPanel(2, {u"Time panel"_s, QString(), ui::StatusPanel::Style::Time, true, 0});
    StatusBar1.setPanel(3, {QString(), QString(), ui::StatusPanel::Style::Text, true, 0});
}

void frmEditor::showStatus(const QString &text)
{
    if (StatusBar1.panelCount() >= 3) {
        StatusBar1.setPanelText(3, text);
    }
}

void frmEditor::mnuRSPath_Click()
{
    ui::FileDialogRequest request;
    request.kind = ui::FileDialogKind::Open;
    request.filter = u"RailSim Files (*.exe)|*.exe"_s;
    request.title = u"Select your RailSim.exe File"_s;
    m_session.RailSimPath = host().fileDialog(request);
    if (m_session.RailSimPath.isEmpty()) {
        return;
    }
    m_session.RailSimPath = m_session.RailSimPath.left(m_session.RailSimPath.lastIndexOf(u'\\'));
    buildCaption(u"RS bin file editor and texture viewer"_s);
    writePreferences();
}

void frmEditor::writePreferences()
{
    core::Preferences prefs;
    prefs.width = qint16(width());
    prefs.height = qint16(height());
    prefs.top = qint16(top());
    prefs.left = qint16(left());
    prefs.GraphicsEditorPath = m_session.GraphicsEditorPath;
    prefs.ViewerPath = m_session.ViewerPath;
    prefs.RailSimPath = m_session.RailSimPath;
    prefs.DefaultEditorIsTree = m_session.DefaultEditorIsTree;
    prefs.ReservedText = m_session.ReservedText;
    prefs.AcrobatPath = m_session.AcrobatPath;
    m_session.services.WriteBinary(m_session.appFolder + u"\\preferences.txt"_s,
                                   platform::Cp1252::encode(core::formatPreferences(prefs)));
}

void frmEditor::Form_Unload(bool &cancel)
{
    (void)cancel;
    if (ui::Window *find = m_forms.find(u"dlgFind"_s)) {
        m_forms.unload(*find);
    }
    writePreferences();
    m_session.services.DelAll(m_session.appFolder + u"\\Tempfiles"_s);
    host().yield();
    core::resumeNext([&] { m_session.services.MkDir(m_session.appFolder + u"\\TempFiles"_s); });
    host().yield();
    m_session.services.KillProcess(u"Brakevan_Max.exe"_s);
}

void frmEditor::mnuExit_Click()
{
    RichTextBox1.setText(QString());
    host().yield();
    m_forms.unload(*this);
}

void frmEditor::mnuFileExit_Click()
{
    m_forms.unload(*this);
}

} // namespace workbench
