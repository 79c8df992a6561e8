// The file roads of the main window: open a game binary or an XML file into the two editors, and
// save the edited text or tree back through the converter, with a backup of the target.

#include "core/Services.h"
#include "core/TextPrimitives.h"
#include "core/Traps.h"
#include "core/platform/Cp1252.h"
#include "workbench/frmEditor.h"

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace workbench
{

namespace
{

const QString binaryFilter =
    u"RS Files(*.bin;*.XSec;*.GeoPcDx;*.proxybin)|*.bin;*.XSec*;*.GeoPcDx;*.proxybin"_s;
const QString xmlFilter =
    u"XML Files (*.xml;*.cost;*.tgt;*.proxyxml)|*.xml;*.cost;*.tgt;*.proxyxml"_s;
const QString treeSaveWarning =
    u"If you just received an Error Message regarding Line 113, then this file did not save correctly. Probably due to there being accented letters in the file. If this happened, select CANCEL and edit using the Brakevan editor."_s;

bool endsWithSuffix(const QString &path, const QStringList &suffixes)
{
    for (const QString &suffix : suffixes) {
        if (path.right(suffix.size()).compare(suffix, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

// The picker of an open command, unless the file was given; the chosen name goes to CurrentFile.
// False when there is no file to open.
bool frmEditor::pickFileToOpen(const QString &filter, const QString &title, const QString &startIn)
{
    if (!m_session.FileGiven) {
        m_session.CurrentFile = pick(ui::FileDialogKind::Open, filter, title, startIn);
        if (m_session.CurrentFile.isEmpty()) {
            return false;
        }
    }
    return true;
}

QString frmEditor::pick(ui::FileDialogKind kind,
                        const QString &filter,
                        const QString &title,
                        const QString &startIn)
{
    ui::FileDialogRequest request;
    request.kind = kind;
    request.filter = filter;
    request.title = title;
    request.initialDir = startIn;
    request.initialName = m_dialogFileName;
    const QString chosen = host().fileDialog(request);
    // The dialog keeps its last name when cancelled, which the save commands then use.
    if (!chosen.isEmpty()) {
        m_dialogFileName = chosen;
    }
    return chosen;
}

void frmEditor::showSourcePath()
{
    host().setBusy(true);
    Text1.setText(m_session.CurrentFile);
    Label2.setCaption(m_session.CurrentFile);
    m_session.FileGiven = false;
    host().yield();
}

void frmEditor::takeWorkNames()
{
    const core::WorkNames work =
        core::ConverterBridge::workNames(m_session.tempFiles(), m_session.CurrentFile);
    TempStem = work.stem;
    m_session.CurrentExt = work.ext;
}

core::WorkNames frmEditor::workNames() const
{
    return core::WorkNames{TempStem, m_session.CurrentExt};
}

void frmEditor::loadPlainText(const QString &path)
{
    if (!m_session.services.FileExists(path)) {
        platform::raise(platform::FileNotFound);
    }
    RichTextBox1.setText(m_session.services.ReadFile(path));
}

void frmEditor::mnuOpenRS_Click()
{
    RichTextBox1.setText(QString());
    Text1.setText(QString());
    Label2.setCaption(QString());
    Tree.TreeSynced = false;
    bool cancelled = false;
    treeReset(TempStem + u"xml"_s, cancelled);
    if (!pickFileToOpen(binaryFilter, u"Open RailSim file"_s, m_session.RailSimPath)) {
        return;
    }
    showSourcePath();
    takeWorkNames();
    m_session.services.FileCopy(m_session.CurrentFile, TempStem + u"bin"_s);
    host().yield();
    m_session.TempXmlPath = TempStem + u"xml"_s;
    m_bridge.toXml(TempStem + u"bin"_s, TempStem + u"xml"_s);
    host().yield();
    loadPlainText(TempStem + u"xml"_s);
    host().setBusy(false);
}

void frmEditor::mnuFileOpen_Click()
{
    core::silently([&] {
        if (!pickFileToOpen(binaryFilter, u"Open RailSim file"_s, m_session.RailSimPath)) {
            return;
        }
        showSourcePath();
        takeWorkNames();
        const QString workBin = TempStem + u"bin"_s;
        if (m_session.paths.absolute(m_session.CurrentFile)
                .compare(m_session.paths.absolute(workBin), Qt::CaseInsensitive)
            != 0) {
            m_session.services.FileCopy(m_session.CurrentFile, workBin);
        }
        host().yield();
        m_bridge.toXml(workBin, TempStem + u"xml"_s);
        host().yield();
        openTreeOn(TempStem + u"xml"_s);
        RichTextBox1.setText(m_session.services.ReadFile(TempStem + u"xml"_s));
        host().setBusy(false);
    });
}

// The reset step with the file as the new tree file, then a new document loaded from it.
void frmEditor::openTreeOn(const QString &xmlPath)
{
    bool cancelled = false;
    treeReset(xmlPath, cancelled);
    if (cancelled) {
        return;
    }
    loadTreeDocument();
    mnuFileSaveAs.setEnabled(true);
}

void frmEditor::mnuXML_Click()
{
    if (!pickFileToOpen(xmlFilter, u"Open .xml file"_s, m_session.RailSimPath)) {
        return;
    }
    showSourcePath();
    takeWorkNames();
    m_session.services.FileCopy(m_session.CurrentFile, TempStem + u"xml"_s);
    host().yield();
    RichTextBox1.setText(m_session.services.ReadFile(TempStem + u"xml"_s));
    openTreeOn(TempStem + u"xml"_s);
    host().setBusy(false);
}

void frmEditor::mnuOpenXCT_Click()
{
    if (!pickFileToOpen(xmlFilter, u"Select file to load"_s, QString())) {
        return;
    }
    m_session.FileGiven = false;
    openTreeOn(m_session.CurrentFile);
}

void frmEditor::mnuSaveRS_Click()
{
    core::Services &services = m_session.services;
    const QString workXml = TempStem + u"xml"_s;
    const QString workBin = TempStem + u"bin"_s;
    if (services.FileExists(workXml)) {
        services.Kill(workXml);
    }
    host().yield();
    host().setBusy(true);
    services.WriteBinary(workXml, platform::Cp1252::encode(RichTextBox1.text()));
    showStatus(u"Deleting "_s + TempStem + u"bin"_s);
    host().yield();
    if (services.FileExists(workBin)) {
        services.Kill(workBin);
    }
    showStatus(u"Running Serz.exe"_s);
    host().yield();
    m_bridge.toBin(workXml, workBin);
    host().yield();
    m_bridge.putBack(workNames(), Text1.text(), [this](const QString &text) { showStatus(text); });
    host().yield();
    showStatus(u"Finished at "_s
               + QLocale::system().toString(QDateTime::currentDateTime(), QLocale::ShortFormat));
    host().yield();
    host().setBusy(false);
}

void frmEditor::mnuFileSave_Click()
{
    core::Services &services = m_session.services;
    WriteTreeFile();
    host().yield();
    tidyWorkXml();
    host().yield();
    if (services.FileExists(TempStem + u"bin"_s)) {
        services.Kill(TempStem + u"bin"_s);
    }
    const QString target = Text1.text();
    m_bridge.toBin(TempStem + u"xml"_s, TempStem + u"bin"_s);
    host().yield();
    if (host().msgBox(
            treeSaveWarning, ui::Buttons::OKCancel, ui::Icon::Exclamation, host().appTitle())
        == ui::Answer::Cancel) {
        return;
    }
    m_bridge.putBack(workNames(), target);
}

void frmEditor::mnuSaveXCT_Click()
{
    WriteTreeFile();
}

void frmEditor::mnuFileSaveAs_Click()
{
    const QString name =
        pick(ui::FileDialogKind::Save,
             u"xml Files (*.xml;*.cost;*.tgt;*.proxyxml)|*.xml;*.cost;*.tgt;*.proxyxml"_s,
             u"Select Filename to Save As..."_s,
             QString());
    if (name.isEmpty()) {
        return;
    }
    if (m_session.services.FileExists(name)
        && host().msgBox(
               u"A file by that name already exists. Do you wish\r\nto overwrite the file?"_s,
               ui::Buttons::YesNo,
               ui::Icon::Question,
               u"File Already Exists"_s)
            == ui::Answer::No) {
        return;
    }
    Tree.TreeFile = name;
    WriteTreeFile();
}

// Saves the plain text of the text page under the name the picker gives; a cancelled picker
// leaves its last name, which is then used (an empty one fails).
void frmEditor::saveTextAs(const QString &filter, const QString &title)
{
    pick(ui::FileDialogKind::Save, filter, title, m_session.tempFiles());
    if (m_dialogFileName.isEmpty()) {
        platform::raise(platform::PathFileAccess);
    }
    m_session.services.WriteBinary(m_dialogFileName, platform::Cp1252::encode(RichTextBox1.text()));
}

void frmEditor::mnuSaveAs_Click()
{
    saveTextAs(u"KRS Files (*.*)|*.*"_s, u"Save KRS format files"_s);
}

void frmEditor::mnuSavexml_Click()
{
    saveTextAs(xmlFilter, u"Save .xml format files"_s);
}

void frmEditor::openByFileKind()
{
    const QString &file = m_session.CurrentFile;
    const bool tree = m_session.DefaultEditorIsTree;
    if (endsWithSuffix(file, {u"BIN"_s, u"XSec"_s, u"GeoPcDx"_s, u"proxybin"_s})) {
        tree ? mnuFileOpen_Click() : mnuOpenRS_Click();
    } else if (endsWithSuffix(file, {u"TgPcDx"_s})) {
        if (tree) {
            SSTab1.setTab(0);
        }
        mnuOpenTex_Click();
    } else if (endsWithSuffix(file, {u"xml"_s, u"cost"_s, u"tgt"_s, u"proxyxml"_s})) {
        tree ? mnuOpenXCT_Click() : mnuXML_Click();
    }
}

} // namespace workbench
