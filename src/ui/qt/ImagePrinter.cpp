#include "ui/qt/ImagePrinter.h"

#include <QDialog>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace uiqt
{

ImagePrinter::ImagePrinter(QImage picture, QString title)
    : m_picture(std::move(picture))
    , m_title(std::move(title))
{
}

bool ImagePrinter::print(QPagedPaintDevice &device) const
{
    if (m_picture.isNull()) {
        return false;
    }
    QPainter painter(&device);
    if (!painter.isActive()) {
        return false;
    }
    const QRect page = painter.viewport();
    int top = page.top();
    if (!m_title.isEmpty()) {
        const QRect titleRect(page.left(), top, page.width(), painter.fontMetrics().height() * 2);
        painter.drawText(titleRect, Qt::AlignHCenter | Qt::AlignTop, m_title);
        top = titleRect.bottom();
    }
    const QRect room(page.left(), top, page.width(), page.bottom() - top);
    QSize size = m_picture.size();
    // A small picture is enlarged too: a texture of 64 pixels would otherwise print as a dot.
    size.scale(room.size(), Qt::KeepAspectRatio);
    const QRect target(
        room.left() + (room.width() - size.width()) / 2, room.top(), size.width(), size.height());
    painter.drawImage(target, m_picture);
    return true;
}

bool printImageWithPreview(const QString &hostPath, const QString &title, QWidget *parent)
{
    const QImage picture(hostPath);
    if (picture.isNull()) {
        return false;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    printer.setPageOrientation(picture.width() > picture.height() ? QPageLayout::Landscape
                                                                  : QPageLayout::Portrait);
    const ImagePrinter job(picture, title);
    QPrintPreviewDialog preview(&printer, parent);
    preview.setWindowTitle(title);
    QObject::connect(&preview,
                     &QPrintPreviewDialog::paintRequested,
                     &preview,
                     [&job](QPrinter *target) { job.print(*target); });
    return preview.exec() == QDialog::Accepted;
}

} // namespace uiqt
