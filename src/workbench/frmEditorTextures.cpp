// The texture commands of the main window: open a game texture as XML, convert it to a .dds and
// back, start the user's tools on the .dds, and show the picture in the viewer.

#include "core/Services.h"
#include "core/Traps.h"
#include "textures/DdsCommands.h"
#include "textures/frmGFX.h"
#include "workbench/frmEditor.h"

using namespace Qt::StringLiterals;

namespace workbench
{

void frmEditor::connectTextures()
{
    mnuOpenTex.onClick([this] { mnuOpenTex_Click(); });
    mnuDDS.onClick([this] { mnuDDS_Click(); });
    mnuDDStoKrs.onClick([this] { mnuDDStoKrs_Click(); });
    mnuView.onClick([this] { mnuView_Click(); });
    mnuEditDDS.onClick([this] { mnuEditDDS_Click(); });
    mnuTgpcdx.onClick([this] { mnuTgpcdx_Click(); });
    Command7.onClick([this] { Command7_Click(); });
    Text1.onChange([this] { Text1_Change(); });
}

// The open road of a binary, with TempDDS as the work folder.
void frmEditor::mnuOpenTex_Click()
{
    core::trapped(host(), u"mnuOpenTex_Click"_s, [&] {
        Command7.setVisible(false);
        if (!pickFileToOpen(u"RS Files (*.TgPcDx)|*.TgPcDx"_s,
                            u"Open RS Texture files"_s,
                            m_session.RailSimPath)) {
            return;
        }
        showSourcePath();
        Text1_Change();
        QString folder = textures::DdsCommands(m_session).tempDds();
        const core::WorkNames work =
            core::ConverterBridge::workNames(folder, m_session.CurrentFile);
        if (!m_session.services.FolderExists(folder)) {
            m_session.services.MkDir(folder);
        }
        m_session.services.FileCopy(m_session.CurrentFile, work.stem + u"bin"_s);
        host().yield();
        m_bridge.toXml(work.stem + u"bin"_s, work.stem + u"xml"_s);
        host().yield();
        RichTextBox1.setText(m_session.services.ReadFile(work.stem + u"xml"_s));
        host().setBusy(false);
    });
}

void frmEditor::mnuDDS_Click()
{
    core::trapped(host(), u"mnuDDS_Click"_s, [&] {
        textures::DdsCommands(m_session).toDds(Text1.text(), RichTextBox1.text());
    });
}

void frmEditor::mnuDDStoKrs_Click()
{
    core::trapped(host(), u"mnuDDStoKrs_Click"_s, [&] {
        (void)textures::DdsCommands(m_session).fromDds(
            [this](const QString &xml) { RichTextBox1.setText(xml); });
    });
}

void frmEditor::mnuView_Click()
{
    textures::DdsCommands(m_session).startTool(
        m_session.ViewerPath,
        Text1.text(),
        u"To view DDS files you need to install a suitable Texture viewer (e.g. IrfanView) on your PC "_s);
}

void frmEditor::mnuEditDDS_Click()
{
    textures::DdsCommands(m_session).startTool(
        m_session.GraphicsEditorPath,
        Text1.text(),
        u"To edit DDS files you need to install a suitable paint program (e.g. PSP with .dds plugin) on your PC "_s);
}

void frmEditor::mnuTgpcdx_Click()
{
    m_forms.show<textures::frmGFX>();
}

// The viewer opens the file that is put in its Text3; emptied first so the same file shows again.
void frmEditor::Command7_Click()
{
    textures::frmGFX &viewer = m_forms.get<textures::frmGFX>();
    viewer.Text3.setText(QString());
    viewer.Text3.setText(Text1.text());
    m_forms.show<textures::frmGFX>();
}

void frmEditor::Text1_Change()
{
    Command7.setVisible(textures::DdsCommands::isTexturePath(Text1.text()));
}

} // namespace workbench
