#pragma once
// Prints a picture file: the picture scaled to fit the page, keeping its shape, centred below
// the job's title; and the printer dialog with a preview that the host shows for it.

#include <QImage>
#include <QString>

class QPagedPaintDevice;
class QWidget;

namespace uiqt
{

class ImagePrinter
{
public:
    ImagePrinter(QImage picture, QString title);

    // Paints the one page on the device (a printer or a PDF writer); false when the picture is
    // empty.
    bool print(QPagedPaintDevice &device) const;

private:
    QImage m_picture;
    QString m_title;
};

// Loads the picture file (a host path) and shows the print preview; false when the file holds no
// picture or the user cancels.
bool printImageWithPreview(const QString &hostPath, const QString &title, QWidget *parent);

} // namespace uiqt
