#pragma once
// A grid of text cells with fixed header rows and columns, a current cell and a selected row range.
// Rows and columns count from 0, header rows included, as the original grid counts them.

#include "ui/Control.h"

#include <QList>

namespace ui
{

class Grid : public Control
{
public:
    QString kind() const override { return QStringLiteral("Grid"); }

    int rows() const { return int(m_cells.size()); }

    int cols() const { return m_cols; }

    void setRows(int rows);
    void setCols(int cols);

    int fixedRows() const { return m_fixedRows; }

    void setFixedRows(int rows) { m_fixedRows = rows; }

    int fixedCols() const { return m_fixedCols; }

    void setFixedCols(int cols) { m_fixedCols = cols; }

    QString textMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString &text);
    // Appends a row whose cells are the tab-separated parts of the text.
    void addItem(const QString &tabbedText);
    void removeItem(int row);
    QStringList rowCells(int row) const;

    int row() const { return m_row; }

    int col() const { return m_col; }

    void setRow(int row);
    void setCol(int col);

    // The selected rows run from row() to rowSel(), in either order.
    int rowSel() const { return m_rowSel; }

    void setRowSel(int row);
    bool isSelected(int row) const;

    // A user's choice of rows: the current row is the first, the range runs to the last; Click
    // fires.
    void userSelect(const QList<int> &rows);

    QStringList dumpRows() const override;

    bool dumpsAsRows() const override { return true; }

    bool isRowSelected(int row) const override { return isSelected(row); }

private:
    void checkCell(int row, int col) const;

    QList<QStringList> m_cells;
    int m_cols = 2;
    int m_fixedRows = 1;
    int m_fixedCols = 1;
    int m_row = 0;
    int m_col = 0;
    int m_rowSel = 0;
};

} // namespace ui
