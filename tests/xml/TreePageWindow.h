#pragma once
// A window with the tree page's controls and the tree editor and search over them, as the main
// window wires them, for tests that need no main window.

#include "XmlFixture.h"
#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/Window.h"
#include "xml/TreeEditor.h"
#include "xml/TreeSearch.h"
#include "xml/TreeState.h"

class TreePageWindow : public ui::Window
{
public:
    TreePageWindow(core::Session &session, ui::Forms &forms)
        : Window(QStringLiteral("frmEditor"))
    {
        setCaption(QStringLiteral("XML File Editor - "));
        const xml::TreePage page = xml::treePageOf(*this, *this);
        const xml::TreeSearchPage search = xml::treeSearchPageOf(*this);
        Tree.editor = std::make_unique<xml::TreeEditor>(session, forms, Tree, page);
        Tree.search = std::make_unique<xml::TreeSearch>(session, forms, Tree, page, search);
        Tree.editor->connect();
        Tree.search->connect();
    }

    ui::TreeView trevwContents;
    ui::ListBox lstAttributes;
    ui::TextBox txtAttributeValue;
    ui::TextBox txtCharacters;
    ui::Button cmdAdd, cmdDel, cmdRename;
    ui::Menu mnuFileSave, mnuFileSaveAs, mnuNodePopUp, mnuNodePopUpNew, mnuNodePopupRename,
        mnuNodePopUpDelete, mnuEditCopy, mnuEditPaste;
    ui::TextBox Text2, Text3;
    ui::CheckBox Check1;
    ui::Button Command2, Command3, Command4, Command5, Command6;
    xml::TreeState Tree;
};

class TreePageTest : public XmlFixture
{
protected:
    TreePageWindow page{session, forms};
    xml::TreeEditor &editor = *page.Tree.editor;

    // Opens a document on the page, as the file commands do.
    void open(const QByteArray &xml, const QString &rel = QStringLiteral("TempFiles\\doc.xml"))
    {
        put(QString(rel).replace(QLatin1Char('\\'), QLatin1Char('/')), xml);
        bool cancelled = false;
        editor.reset(win(rel), cancelled);
        editor.load();
    }

    QStringList prompts() const
    {
        QStringList out;
        for (const QString &line : host.transcript()) {
            if (line.startsWith(QStringLiteral("msgbox"))
                || line.startsWith(QStringLiteral("inputbox"))
                || line.startsWith(QStringLiteral("show"))) {
                out.append(line);
            }
        }
        return out;
    }
};
