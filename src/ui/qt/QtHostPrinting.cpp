// The host's printing and picture windows: texts and grids laid out by GridPrinter, pictures by
// ImagePrinter, behind the system's print dialog or a preview.

#include "ui/qt/GridPrinter.h"
#include "ui/qt/ImagePrinter.h"
#include "ui/qt/QtHost.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

namespace uiqt
{

bool QtHost::print(const ui::PrintJob &job)
{
    QWidget *parent = QApplication::activeWindow();
    if (job.kind == ui::PrintJob::Kind::Image) {
        const QString hostPath = m_context.toHost ? m_context.toHost(job.imagePath) : job.imagePath;
        return printImageWithPreview(hostPath, job.title, parent);
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    const GridPrinter pages(job);
    if (job.preview) {
        QPrintPreviewDialog preview(&printer, parent);
        QObject::connect(&preview,
                         &QPrintPreviewDialog::paintRequested,
                         [&pages](QPrinter *device) { pages.print(*device); });
        return preview.exec() == QDialog::Accepted;
    }
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    pages.print(printer);
    return true;
}

void QtHost::showPicture(const QString &winPath, bool fullScreen)
{
    const QString hostPath = m_context.toHost ? m_context.toHost(winPath) : winPath;
    // A window of its own that goes when closed; a click closes it, as a slide does.
    auto *label = new QLabel;
    label->setAttribute(Qt::WA_DeleteOnClose);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("background: black;"));
    label->setWindowTitle(m_appTitle);
    QPixmap picture(hostPath);
    if (fullScreen && QGuiApplication::primaryScreen()) {
        picture = picture.scaled(QGuiApplication::primaryScreen()->size(),
                                 Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
    }
    label->setPixmap(picture);
    if (fullScreen) {
        label->showFullScreen();
    } else {
        label->show();
    }
}

} // namespace uiqt
