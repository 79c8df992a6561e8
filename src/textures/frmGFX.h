#pragma once
// The picture viewer "PicView": browses folders for game textures, shows the chosen one as a
// work bitmap in TempFiles, and greys, flips, rotates, prints or shows that bitmap full screen.

#include "core/Session.h"
#include "textures/WorkBitmap.h"
#include "ui/FileList.h"
#include "ui/Forms.h"
#include "ui/Label.h"
#include "ui/Menu.h"
#include "ui/PictureBox.h"
#include "ui/TextBox.h"
#include "ui/Window.h"

namespace textures
{

class frmGFX : public ui::Window
{
public:
    frmGFX(core::Session &session, ui::Forms &forms);

    void Form_Load() override;

    ui::DriveList Drive1;
    ui::DirList Dir1;
    ui::FileList File1;
    ui::TextBox Text1;
    ui::TextBox Text3;
    ui::PictureBox Picture1;
    ui::Label Label1;

    ui::Menu mnuFile, mnuFileOpen, mnuFilePrint, mnuFileExit;
    ui::Menu mnuProcess, grey, flip, rot;
    ui::Menu mnuScan, mnuseltwain, mnutwaq, mnuBr;

    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void Text1_Change();
    void Text3_Change();
    void Picture1_Click();
    void mnuFileOpen_Click();
    void mnuFilePrint_Click();
    void mnuFileExit_Click();
    void grey_Click();
    void flip_Click();
    void rot_Click();
    void mnuseltwain_Click();
    void mnutwaq_Click();
    void mnuBr_Click();

    // The work bitmap every command works on.
    QString workBitmap() const;

private:
    void registerMenus();
    void connectHandlers();
    void showPicture(const QString &path);
    void process(BitmapOperation operation);
    void tell(const QString &text) const;

    core::Session &m_session;
    ui::Forms &m_forms;
};

} // namespace textures
