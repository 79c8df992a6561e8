#pragma once
// The main window: the session's owner, its two editors of one file (text and tree), the status
// bar, and the menus that open every other window. Its handlers are split by subsystem over
// frmEditor*.cpp files: start-up and closing, the file roads, options, the text page, the tree
// page, textures, and the tools.

#include "core/ConverterBridge.h"
#include "core/Session.h"
#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Forms.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/RichText.h"
#include "ui/StatusBar.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/Window.h"
#include "xml/TreeState.h"

namespace workbench
{

class frmEditor : public ui::Window
{
public:
    frmEditor(core::Session &session, ui::Forms &forms);
    ~frmEditor() override;

    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

    // The main window's tabs, frames and status bar.
    ui::TabStrip SSTab1;
    ui::Frame Frame1; // the text page
    ui::Frame Frame2; // the tree page
    ui::Frame Frame3; // the tree page's search
    ui::StatusBar StatusBar1;

    // The text page.
    ui::RichText RichTextBox1;
    ui::TextBox Text1;
    ui::Label Label2;
    ui::Button Command1;
    ui::Button Command7;

    // The tree page.
    ui::TreeView trevwContents;
    ui::Label lblAttributes;
    ui::ListBox lstAttributes;
    ui::Label lblValue;
    ui::TextBox txtAttributeValue;
    ui::Label lblCharacters;
    ui::TextBox txtCharacters;
    ui::Button cmdAdd;
    ui::Button cmdDel;
    ui::Button cmdRename;

    // The tree search, in Frame3.
    ui::TextBox Text2;
    ui::TextBox Text3;
    ui::CheckBox Check1;
    ui::Button Command2;
    ui::Button Command3;
    ui::Button Command4;
    ui::Button Command5;
    ui::Button Command6;

    // Menus: the text editor's File menu, the tree editor's, and the rest in menu-bar order.
    ui::Menu mnuFiles, mnuOpenRS, mnuSaveRS, mnuXML, mnuSavexml, mnuSaveAs, mnuOpenTex, mnuPrint,
        mnuExit;
    ui::Menu mnuFile, mnuFileOpen, mnuFileSave, mnuOpenXCT, mnuSaveXCT, mnuFileSaveAs, mnuFileExit;
    ui::Menu mnuNodePopUp, mnuNodePopUpNew, mnuNodePopupRename, mnuNodePopUpDelete, mnuEditCopy,
        mnuEditPaste;
    ui::Menu mnuSearch, mnuFind, mnuSwap;
    ui::Menu mnuConversions, mnuDDS, mnuView, mnuEditDDS, mnuDDStoKrs, mnuTime;
    ui::Menu mnuTools, mnuDelRoute, mnuMultiMarker, mnuDCSVnew, mnuPackAss, mnuReskin, mnuPack,
        mnuPackSce, mnuDeveloper, mnuDevFolders, mnuCheckXML, mnuTgpcdx, mnuLists, mnuQuickstep;
    ui::Menu mnuEasy, mnuLoco, mnuMarkN, mnuMarkS, mnuRoute, mnuRouteInfo, mnuMap;
    ui::Menu mnuOptions, mnuClear, mnuCTF, mnuReadWrite, mnuSelDefEdit, mnuAcro, mnuRSPath, mnuIRF,
        mnuURS, mnuUXML, mnuViewer;
    ui::Menu mnuHelp, mnuContents, mnuAbout;

    // Members the file roads and the tree editor share.
    QString TempStem;
    xml::TreeState Tree;

    // Start-up and closing (frmEditor.cpp).
    void mnuRSPath_Click();
    void mnuExit_Click();
    void mnuFileExit_Click();

    // The file roads (frmEditorFiles.cpp).
    void mnuOpenRS_Click();
    void mnuSaveRS_Click();
    void mnuXML_Click();
    void mnuSavexml_Click();
    void mnuSaveAs_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuOpenXCT_Click();
    void mnuSaveXCT_Click();
    void mnuFileSaveAs_Click();
    // Opens CurrentFile by its suffix, as a file named on the command line is opened.
    void openByFileKind();

    // Options and housekeeping (frmEditorOptions.cpp).
    void mnuClear_Click();
    void mnuCTF_Click();
    void mnuReadWrite_Click();
    void mnuSelDefEdit_Click();
    void mnuAcro_Click();
    void mnuIRF_Click();
    void mnuViewer_Click();
    void mnuURS_Click();
    void mnuUXML_Click();
    void mnuPrint_Click();
    void mnuContents_Click();
    void mnuAbout_Click();

    // The text page and the tab switch (frmEditorText.cpp).
    void Command1_Click();
    void mnuFind_Click();
    void SSTab1_Click();

    // The tree page (frmEditorTree.cpp).
    void treeReset(const QString &path, bool &cancelled);
    void newTreeDocument();
    void loadTreeDocument();
    void WriteTreeFile();
    void SetTreeModified(bool modified);

    // Textures (frmEditorTextures.cpp).
    void mnuOpenTex_Click();
    void mnuDDS_Click();
    void mnuDDStoKrs_Click();
    void mnuView_Click();
    void mnuEditDDS_Click();
    void mnuTgpcdx_Click();
    void Command7_Click();
    void Text1_Change();

    // The tools that open other windows (frmEditorTools.cpp).
    void mnuDelRoute_Click();
    void mnuCheckXML_Click();

    core::Session &session() const { return m_session; }

    ui::Forms &forms() const { return m_forms; }

    const core::ConverterBridge &bridge() const { return m_bridge; }

private:
    void registerControls();
    void registerMenus();
    void registerTreePage();
    void connectHandlers();
    void connectTreePage();
    void connectTextures();
    void setUpStatusBar();
    void buildCaption(const QString &start);
    void writePreferences();
    void readPreferences();
    void findConverter(bool &found);
    void findGame();
    void showStatus(const QString &text);

    ui::Host &host() const { return m_forms.host(); }

    // Steps of the file roads (frmEditorFiles.cpp).
    bool pickFileToOpen(const QString &filter, const QString &title, const QString &startIn);
    QString pick(ui::FileDialogKind kind,
                 const QString &filter,
                 const QString &title,
                 const QString &startIn);
    void showSourcePath();
    void takeWorkNames();
    core::WorkNames workNames() const;
    void loadPlainText(const QString &path);
    void openTreeOn(const QString &xmlPath);
    void saveTextAs(const QString &filter, const QString &title);
    // Tidies the work XML line by line after a tree write (frmEditorTree.cpp).
    void tidyWorkXml();
    void pickToolPath(const QString &filter, const QString &title, QString &path);

    core::Session &m_session;
    ui::Forms &m_forms;
    core::ConverterBridge m_bridge;
    QString m_dialogFileName; // the file dialog keeps its last name between uses
};

} // namespace workbench
