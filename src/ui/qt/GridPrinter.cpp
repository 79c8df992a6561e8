#include "ui/qt/GridPrinter.h"

#include <QFont>
#include <QFontMetrics>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace uiqt
{

namespace
{

// Wraps a paragraph into lines no wider than width, breaking at blanks where it can.
QStringList wrap(const QString &paragraph, const QFontMetrics &metrics, int width)
{
    QStringList lines;
    QString line;
    for (const QString &word : paragraph.split(QLatin1Char(' '))) {
        const QString candidate = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(candidate) > width) {
            lines.append(line);
            line = word;
        } else {
            line = candidate;
        }
    }
    lines.append(line);
    return lines;
}

// The widths of the grid's columns: each its widest cell, shrunk in proportion to fit the page.
QList<int> columnWidths(const QList<QStringList> &rows, const QFontMetrics &metrics, int pageWidth)
{
    QList<int> widths;
    const int gap = metrics.horizontalAdvance(QStringLiteral("  "));
    for (const QStringList &row : rows) {
        for (int col = 0; col < row.size(); ++col) {
            if (widths.size() <= col) {
                widths.append(0);
            }
            widths[col] = std::max(widths[col], metrics.horizontalAdvance(row[col]) + gap);
        }
    }
    int total = 0;
    for (const int width : widths) {
        total += width;
    }
    if (total > pageWidth && total > 0) {
        for (int &width : widths) {
            width = int(qint64(width) * pageWidth / total);
        }
    }
    return widths;
}

class PageWriter
{
public:
    PageWriter(QPagedPaintDevice &device, QPainter &painter, const QString &header)
        : m_device(device)
        , m_painter(painter)
        , m_header(header)
        , m_lineHeight(painter.fontMetrics().lineSpacing())
    {
        startPage();
    }

    int pageWidth() const { return m_device.width(); }

    int pages() const { return m_page; }

    // The top of the next line, on a new page when this one is full.
    int nextLine()
    {
        if (m_y + m_lineHeight > m_device.height()) {
            m_device.newPage();
            startPage();
        }
        const int y = m_y;
        m_y += m_lineHeight;
        return y;
    }

    int lineHeight() const { return m_lineHeight; }

private:
    void startPage()
    {
        ++m_page;
        m_y = 0;
        if (m_header.isEmpty()) {
            return;
        }
        const QStringList parts = GridPrinter::headerParts(m_header, m_page);
        const QRect band(0, 0, m_device.width(), m_lineHeight);
        m_painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter, parts.value(0));
        m_painter.drawText(band, Qt::AlignHCenter | Qt::AlignVCenter, parts.value(1));
        m_painter.drawText(band, Qt::AlignRight | Qt::AlignVCenter, parts.value(2));
        m_y = 2 * m_lineHeight;
    }

    QPagedPaintDevice &m_device;
    QPainter &m_painter;
    QString m_header;
    int m_lineHeight;
    int m_page = 0;
    int m_y = 0;
};

} // namespace

GridPrinter::GridPrinter(const ui::PrintJob &job)
    : m_job(job)
{
}

QStringList GridPrinter::headerParts(const QString &header, int page)
{
    QStringList parts = header.split(QLatin1Char('|'));
    while (parts.size() < 3) {
        parts.append(QString());
    }
    for (QString &part : parts) {
        part.replace(QStringLiteral("%d"), QString::number(page));
    }
    return parts.mid(0, 3);
}

int GridPrinter::print(QPagedPaintDevice &device) const
{
    QPainter painter(&device);
    QFont font(m_job.fontName.isEmpty() ? QStringLiteral("Serif") : m_job.fontName);
    font.setPointSize(std::max(1, m_job.fontSize));
    painter.setFont(font);
    PageWriter pages(device, painter, m_job.header);
    const QFontMetrics metrics = painter.fontMetrics();
    if (m_job.kind == ui::PrintJob::Kind::Grid) {
        const QList<int> widths = columnWidths(m_job.rows, metrics, pages.pageWidth());
        for (const QStringList &row : m_job.rows) {
            const int y = pages.nextLine();
            int x = 0;
            for (int col = 0; col < row.size(); ++col) {
                const QRect cell(x, y, widths[col], pages.lineHeight());
                painter.drawText(cell,
                                 Qt::AlignLeft | Qt::AlignVCenter,
                                 metrics.elidedText(row[col], Qt::ElideRight, widths[col]));
                x += widths[col];
            }
        }
    } else {
        QString text = m_job.text;
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
            for (const QString &line : wrap(paragraph, metrics, pages.pageWidth())) {
                painter.drawText(0, pages.nextLine() + metrics.ascent(), line);
            }
        }
    }
    painter.end();
    return pages.pages();
}

} // namespace uiqt
