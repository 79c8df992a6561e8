#include "ui/Grid.h"

#include "core/platform/Failure.h"

namespace ui
{

void Grid::checkCell(int row, int col) const
{
    if (row < 0 || row >= rows() || col < 0 || col >= m_cols) {
        platform::raise(platform::SubscriptOutOfRange);
    }
}

void Grid::setRows(int count)
{
    count = qMax(0, count);
    while (rows() < count) {
        m_cells.append(QStringList(m_cols));
    }
    while (rows() > count) {
        m_cells.removeLast();
    }
    m_row = qMin(m_row, qMax(0, count - 1));
    m_rowSel = qMin(m_rowSel, qMax(0, count - 1));
    changed();
}

void Grid::setCols(int count)
{
    m_cols = qMax(0, count);
    for (QStringList &cells : m_cells) {
        while (cells.size() < m_cols) {
            cells.append(QString());
        }
        while (cells.size() > m_cols) {
            cells.removeLast();
        }
    }
    changed();
}

QString Grid::textMatrix(int row, int col) const
{
    checkCell(row, col);
    return m_cells.at(row).at(col);
}

void Grid::setTextMatrix(int row, int col, const QString &text)
{
    checkCell(row, col);
    m_cells[row][col] = text;
    changed();
}

void Grid::addItem(const QString &tabbedText)
{
    QStringList cells = tabbedText.split(QLatin1Char('\t'));
    while (cells.size() < m_cols) {
        cells.append(QString());
    }
    cells = cells.mid(0, m_cols);
    m_cells.append(cells);
    changed();
}

void Grid::removeItem(int row)
{
    checkCell(row, 0);
    m_cells.removeAt(row);
    changed();
}

QStringList Grid::rowCells(int row) const
{
    checkCell(row, 0);
    return m_cells.at(row);
}

void Grid::setRow(int row)
{
    checkCell(row, 0);
    m_row = row;
    m_rowSel = row;
    changed();
}

void Grid::setCol(int col)
{
    checkCell(m_row, col);
    m_col = col;
    changed();
}

void Grid::setRowSel(int row)
{
    checkCell(row, 0);
    m_rowSel = row;
    changed();
}

bool Grid::isSelected(int row) const
{
    if (row < m_fixedRows) {
        return false;
    }
    return row >= qMin(m_row, m_rowSel) && row <= qMax(m_row, m_rowSel);
}

void Grid::userSelect(const QList<int> &rows)
{
    if (rows.isEmpty()) {
        return;
    }
    for (const int row : rows) {
        checkCell(row, 0);
    }
    m_row = rows.first();
    m_rowSel = rows.last();
    changed();
    fireClick();
}

QStringList Grid::dumpRows() const
{
    QStringList out;
    for (const QStringList &cells : m_cells) {
        out.append(cells.join(QLatin1Char('\t')));
    }
    return out;
}

} // namespace ui
