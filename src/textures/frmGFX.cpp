#include "textures/frmGFX.h"

#include "core/Services.h"
#include "core/Traps.h"
#include "textures/PictureDecoder.h"

namespace textures
{

namespace
{

const QString noScanner = QStringLiteral(
    "No scanner interface is available on this system, so images cannot be scanned.");

// Names of the files matching any of the pattern's parts ("*.TgPcDx;*.dds"), sorted case-blind.
QStringList
matchingFiles(const core::Services &services, const QString &folder, const QString &pattern)
{
    QStringList names;
    for (const QString &part : pattern.split(u';', Qt::SkipEmptyParts)) {
        for (const QString &name : services.listFiles(folder, part.trimmed())) {
            if (!names.contains(name, Qt::CaseInsensitive)) {
                names.append(name);
            }
        }
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace

frmGFX::frmGFX(core::Session &session, ui::Forms &forms)
    : Window(QStringLiteral("frmGFX"))
    , m_session(session)
    , m_forms(forms)
{
    setCaption(QStringLiteral("PicView"));
    setGeometry(0, 0, 11000, 8000);
    add(QStringLiteral("Drive1"), Drive1);
    add(QStringLiteral("Dir1"), Dir1);
    add(QStringLiteral("File1"), File1);
    add(QStringLiteral("Text1"), Text1);
    add(QStringLiteral("Text3"), Text3).setVisible(false);
    add(QStringLiteral("Picture1"), Picture1)
        .setToolTip(QStringLiteral("Click on the image to display full screen"));
    add(QStringLiteral("Label1"), Label1)
        .setCaption(QStringLiteral("Clickon image to display Full-Screen"));
    registerMenus();
    core::Services &services = m_session.services;
    File1.setLister([&services](const QString &folder, const QString &pattern) {
        return matchingFiles(services, folder, pattern);
    });
    Dir1.setLister([&services](const QString &folder, const QString &) {
        return services.listFolders(folder);
    });
    Drive1.setRows({QStringLiteral("c:"), QStringLiteral("z:")});
    connectHandlers();
}

void frmGFX::registerMenus()
{
    addMenu(QStringLiteral("mnuFile"), mnuFile, {}, QStringLiteral("&File"));
    addMenu(QStringLiteral("mnuFileOpen"),
            mnuFileOpen,
            QStringLiteral("mnuFile"),
            QStringLiteral("&Open..."));
    addMenu(QStringLiteral("mnuFilePrint"),
            mnuFilePrint,
            QStringLiteral("mnuFile"),
            QStringLiteral("&Print..."));
    addMenu(QStringLiteral("mnuFileExit"),
            mnuFileExit,
            QStringLiteral("mnuFile"),
            QStringLiteral("E&xit"));
    addMenu(QStringLiteral("mnuProcess"), mnuProcess, {}, QStringLiteral("&Image"));
    addMenu(
        QStringLiteral("grey"), grey, QStringLiteral("mnuProcess"), QStringLiteral("Greyscale"));
    addMenu(QStringLiteral("flip"), flip, QStringLiteral("mnuProcess"), QStringLiteral("Flip"));
    addMenu(QStringLiteral("rot"),
            rot,
            QStringLiteral("mnuProcess"),
            QStringLiteral("Rotate 90 degrees"));
    addMenu(QStringLiteral("mnuScan"), mnuScan, {}, QStringLiteral("&Scan"));
    addMenu(QStringLiteral("mnuseltwain"),
            mnuseltwain,
            QStringLiteral("mnuScan"),
            QStringLiteral("Select Twain Source"));
    addMenu(QStringLiteral("mnutwaq"),
            mnutwaq,
            QStringLiteral("mnuScan"),
            QStringLiteral("Acquire Image"));
    addMenu(
        QStringLiteral("mnuBr"), mnuBr, QStringLiteral("mnuScan"), QStringLiteral("Open Browser"));
}

void frmGFX::connectHandlers()
{
    Drive1.onChange([this] { Drive1_Change(); });
    Dir1.onChange([this] { Dir1_Change(); });
    File1.onClick([this] { File1_Click(); });
    Text1.onChange([this] { Text1_Change(); });
    Text3.onChange([this] { Text3_Change(); });
    Picture1.onClick([this] { Picture1_Click(); });
    mnuFileOpen.onClick([this] { mnuFileOpen_Click(); });
    mnuFilePrint.onClick([this] { mnuFilePrint_Click(); });
    mnuFileExit.onClick([this] { mnuFileExit_Click(); });
    grey.onClick([this] { grey_Click(); });
    flip.onClick([this] { flip_Click(); });
    rot.onClick([this] { rot_Click(); });
    mnuseltwain.onClick([this] { mnuseltwain_Click(); });
    mnutwaq.onClick([this] { mnutwaq_Click(); });
    mnuBr.onClick([this] { mnuBr_Click(); });
}

void frmGFX::Form_Load()
{
    const QString assets = m_session.RailSimPath + QStringLiteral("\\Assets");
    Drive1.setDrive(assets.left(2).toLower());
    Text1.setText(QStringLiteral("*.TgPcDx"));
    Dir1.setPath(assets);
}

QString frmGFX::workBitmap() const
{
    return m_session.tempFiles() + QStringLiteral("\\temp.bmp");
}

void frmGFX::tell(const QString &text) const
{
    m_session.host.msgBox(text, ui::Buttons::OK, ui::Icon::Information, m_session.host.appTitle());
}

void frmGFX::Drive1_Change()
{
    if (Dir1.path().left(2).compare(Drive1.drive(), Qt::CaseInsensitive) != 0) {
        core::resumeNext([&] { Dir1.setPath(Drive1.drive() + u'\\'); });
    }
}

void frmGFX::Dir1_Change()
{
    File1.setPath(Dir1.path());
}

void frmGFX::Text1_Change()
{
    File1.setPattern(Text1.text().isEmpty() ? QStringLiteral("*.*") : Text1.text());
}

void frmGFX::File1_Click()
{
    if (File1.fileName().isEmpty()) {
        return;
    }
    QString folder = File1.path();
    if (!folder.endsWith(u'\\')) {
        folder += u'\\';
    }
    showPicture(folder + File1.fileName());
}

void frmGFX::Text3_Change()
{
    if (!Text3.text().isEmpty()) {
        showPicture(Text3.text());
    }
}

void frmGFX::mnuFileOpen_Click()
{
    ui::FileDialogRequest request;
    request.title = QStringLiteral("Open");
    request.filter = QStringLiteral("All Files (*.TgPcDx)|*.TgPcDx");
    const QString path = m_session.host.fileDialog(request);
    if (!path.isEmpty()) {
        showPicture(path);
    }
}

// The old work bitmap goes first, so a failed decode shows nothing rather than the last picture.
void frmGFX::showPicture(const QString &path)
{
    core::trapped(m_session.host, QStringLiteral("frmGFX.showPicture"), [&] {
        core::Services &services = m_session.services;
        const QString bitmap = workBitmap();
        if (services.FileExists(bitmap)) {
            services.Kill(bitmap);
        }
        m_session.host.yield();
        platform::Result<QImage> picture = decodePicture(services.ReadBinary(path));
        if (!picture) {
            Picture1.setPicture(QString());
            tell(QStringLiteral("This picture cannot be shown: ") + picture.error().description);
            return;
        }
        QString tempFiles = m_session.tempFiles();
        if (!services.FolderExists(tempFiles)) {
            services.MkDir(tempFiles);
        }
        services.WriteBinary(bitmap, bitmapBytes(picture.value()));
        Picture1.setPicture(bitmap);
        const QString name = path.mid(path.lastIndexOf(u'\\') + 1);
        setCaption(QStringLiteral("PicView - %1 (%2x%3)")
                       .arg(name)
                       .arg(picture.value().width())
                       .arg(picture.value().height()));
    });
}

void frmGFX::process(BitmapOperation operation)
{
    core::silently([&] {
        core::Services &services = m_session.services;
        const QString bitmap = workBitmap();
        const QImage picture = bitmapFromBytes(services.ReadBinary(bitmap));
        if (picture.isNull()) {
            return;
        }
        services.WriteBinary(bitmap, bitmapBytes(processBitmap(picture, operation)));
        Picture1.setPicture(bitmap);
    });
}

void frmGFX::grey_Click()
{
    process(BitmapOperation::Greyscale);
}

void frmGFX::flip_Click()
{
    process(BitmapOperation::Flip);
}

void frmGFX::rot_Click()
{
    process(BitmapOperation::Rotate90);
}

void frmGFX::Picture1_Click()
{
    if (!Picture1.picture().isEmpty()) {
        m_session.host.showPicture(Picture1.picture(), true);
    }
}

void frmGFX::mnuFilePrint_Click()
{
    if (Picture1.picture().isEmpty()) {
        return;
    }
    ui::PrintJob job;
    job.kind = ui::PrintJob::Kind::Image;
    job.title = caption();
    job.imagePath = Picture1.picture();
    job.preview = true;
    m_session.host.print(job);
}

void frmGFX::mnuFileExit_Click()
{
    m_forms.unload(*this);
}

void frmGFX::mnuseltwain_Click()
{
    tell(noScanner);
}

void frmGFX::mnutwaq_Click()
{
    tell(noScanner);
}

void frmGFX::mnuBr_Click()
{
    tell(QStringLiteral("No picture browser is available; choose a folder and a file in the lists "
                        "of this window."));
}

} // namespace textures
