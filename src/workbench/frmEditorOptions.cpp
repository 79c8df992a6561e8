// The main window's options and housekeeping: tool paths, the default editor, work files,
// read/write rights, printing and help.

#include "core/Services.h"
#include "core/Traps.h"
#include "workbench/frmEditor.h"

using namespace Qt::StringLiterals;

namespace workbench
{

// A tool path is the chosen name as it stands; a cancel clears it. Written at exit.
void frmEditor::pickToolPath(const QString &filter, const QString &title, QString &path)
{
    path = pick(ui::FileDialogKind::Open, filter, title, QString());
}

void frmEditor::mnuAcro_Click()
{
    pickToolPath(
        u"Acrobat Reader (*.exe)|*.exe"_s, u"Select your Acrobat Reader"_s, m_session.AcrobatPath);
}

void frmEditor::mnuIRF_Click()
{
    pickToolPath(u"Graphics Editor (*.exe)|*.exe"_s,
                 u"Select your Graphics Editor"_s,
                 m_session.GraphicsEditorPath);
}

void frmEditor::mnuViewer_Click()
{
    pickToolPath(u"Viewer (*.exe)|*.exe"_s, u"Select your Graphics Viewer"_s, m_session.ViewerPath);
}

void frmEditor::mnuSelDefEdit_Click()
{
    const ui::Answer answer =
        host().msgBox(u"Do you wish to use the .XML editor as your Default Editor?"_s,
                      ui::Buttons::YesNo,
                      ui::Icon::Question,
                      host().appTitle());
    if (answer == ui::Answer::Yes) {
        m_session.DefaultEditorIsTree = true;
        SSTab1.setTab(1);
    } else if (answer == ui::Answer::No) {
        m_session.DefaultEditorIsTree = false;
        SSTab1.setTab(0);
    }
}

void frmEditor::mnuURS_Click()
{
    m_session.EditorChoice = 1;
    SSTab1.setTab(0);
}

void frmEditor::mnuUXML_Click()
{
    m_session.EditorChoice = 2;
    SSTab1.setTab(1);
    host().yield();
}

void frmEditor::mnuClear_Click()
{
    if (!TempStem.isEmpty() && m_session.services.FileExists(TempStem)) {
        m_session.services.Kill(TempStem);
    }
    RichTextBox1.setText(QString());
    Text1.setText(QString());
    Label2.setCaption(QString());
}

void frmEditor::mnuCTF_Click()
{
    m_session.services.DelAll(m_session.appFolder + u"\\TempFiles"_s);
    host().yield();
    m_session.services.MkDir(m_session.appFolder + u"\\TempFiles"_s);
}

void frmEditor::mnuReadWrite_Click()
{
    core::Services &services = m_session.services;
    host().setBusy(true);
    services.WriteFile(m_session.tempFiles() + u"\\do_read.bat"_s,
                       u"ATTRIB -R \""_s + m_session.RailSimPath + u"\\*.*\" /s /d"_s);
    services.ChDrive(m_session.tempFiles().left(2));
    services.ChDir(m_session.tempFiles());
    services.ShellAndWait(u"do_read.bat"_s, true, false);
    host().setBusy(false);
    host().msgBox(u"All files are now Read/Write"_s,
                  ui::Buttons::OK,
                  ui::Icon::Exclamation,
                  host().appTitle());
}

void frmEditor::mnuPrint_Click()
{
    core::silently([&] {
        RichTextBox1.setText(QString(RichTextBox1.text()).remove(u'\t'));
        RichTextBox1.setSelection(0, int(RichTextBox1.text().size()));
        ui::PrintJob job;
        job.kind = ui::PrintJob::Kind::Text;
        job.title = caption();
        job.text = RichTextBox1.text();
        job.fontName = u"Courier New"_s;
        job.fontSize = 10;
        host().print(job);
    });
}

void frmEditor::mnuContents_Click()
{
    if (m_session.AcrobatPath.isEmpty()) {
        host().msgBox(
            u"Before you can read Help files, you must set up the path\r\nto your Acrobat Reader in the Options menu."_s,
            ui::Buttons::OK,
            ui::Icon::Exclamation,
            host().appTitle());
        return;
    }
    m_session.services.StartDetached(u"\""_s + m_session.AcrobatPath + u"\" \""_s
                                     + m_session.appFolder + u"\\Brakevan_Help.pdf\""_s);
}

void frmEditor::mnuAbout_Click()
{
    host().msgBox(host().appTitle() + u"\r\nVersion "_s + QStringLiteral(BV_VERSION_MAJOR) + u"."_s
                      + QStringLiteral(BV_VERSION_MINOR) + u"."_s + QStringLiteral(BV_VERSION_PATCH)
                      + u"\r\nA workbench for Rail Simulator add-on content."_s,
                  ui::Buttons::OK,
                  ui::Icon::Information,
                  u"About"_s);
}

} // namespace workbench
