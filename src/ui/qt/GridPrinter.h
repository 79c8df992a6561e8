#pragma once
// Lays a print job out on pages: a grid as rows of cells in columns, or a text as wrapped lines,
// with the job's header ("left|centre|right", %d the page number) at the top of every page.

#include "ui/Host.h"

#include <QString>
#include <QStringList>

class QPagedPaintDevice;

namespace uiqt
{

class GridPrinter
{
public:
    explicit GridPrinter(const ui::PrintJob &job);

    // Paints every page of the job on the device (a printer or a PDF writer); the page count.
    int print(QPagedPaintDevice &device) const;

    // The header's left, centre and right texts for a page: "||Page %d" gives "", "", "Page 2".
    static QStringList headerParts(const QString &header, int page);

private:
    ui::PrintJob m_job;
};

} // namespace uiqt
