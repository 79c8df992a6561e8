#include "ui/qt/GridWidget.h"

#include "ui/Grid.h"
#include "ui/qt/ControlBinding.h"

#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>

#include <memory>

namespace uiqt
{

namespace
{

// Grids longer than this keep their column widths: measuring every cell would stall the window.
constexpr int MeasuredRows = 2000;

// How many model rows and columns the table's headers stand for (the first fixed one each).
int headRows(const ui::Grid &grid)
{
    return grid.fixedRows() > 0 && grid.rows() > 0 ? 1 : 0;
}

int headCols(const ui::Grid &grid)
{
    return grid.fixedCols() > 0 && grid.cols() > 0 ? 1 : 0;
}

void setHeader(QTableWidget &widget, Qt::Orientation orientation, int section, const QString &text)
{
    const bool across = orientation == Qt::Horizontal;
    QTableWidgetItem *item =
        across ? widget.horizontalHeaderItem(section) : widget.verticalHeaderItem(section);
    if (item && item->text() == text) {
        return;
    }
    if (across) {
        widget.setHorizontalHeaderItem(section, new QTableWidgetItem(text));
    } else {
        widget.setVerticalHeaderItem(section, new QTableWidgetItem(text));
    }
}

void setCell(QTableWidget &widget, int row, int col, const QString &text, bool fixed)
{
    QTableWidgetItem *item = widget.item(row, col);
    if (!item) {
        item = new QTableWidgetItem;
        item->setFlags(fixed ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        if (fixed) {
            item->setBackground(widget.palette().button());
        }
        widget.setItem(row, col, item);
    }
    if (item->text() != text) {
        item->setText(text);
    }
}

// Gives true when a cell's text changed.
bool paintCells(QTableWidget &widget, const ui::Grid &grid)
{
    const int hr = headRows(grid);
    const int hc = headCols(grid);
    bool resized = false;
    if (widget.rowCount() != grid.rows() - hr || widget.columnCount() != grid.cols() - hc) {
        widget.setRowCount(grid.rows() - hr);
        widget.setColumnCount(grid.cols() - hc);
        resized = true;
    }
    widget.horizontalHeader()->setVisible(hr > 0);
    widget.verticalHeader()->setVisible(hc > 0);
    for (int c = hc; c < grid.cols() && hr > 0; ++c) {
        setHeader(widget, Qt::Horizontal, c - hc, grid.textMatrix(0, c));
    }
    for (int r = 0; r < grid.rows(); ++r) {
        const QStringList cells = grid.rowCells(r);
        if (r < hr) {
            continue;
        }
        if (hc > 0) {
            setHeader(widget, Qt::Vertical, r - hr, cells.value(0));
        }
        for (int c = hc; c < grid.cols(); ++c) {
            const bool fixed = r < grid.fixedRows() || c < grid.fixedCols();
            setCell(widget, r - hr, c - hc, cells.value(c), fixed);
        }
    }
    return resized;
}

void paintSelection(QTableWidget &widget, const ui::Grid &grid)
{
    const int hr = headRows(grid);
    const int hc = headCols(grid);
    widget.clearSelection();
    const int first = qMax(qMin(grid.row(), grid.rowSel()), grid.fixedRows());
    const int last = qMax(grid.row(), grid.rowSel());
    if (last >= first && last - hr < widget.rowCount() && widget.columnCount() > 0) {
        widget.setRangeSelected(
            QTableWidgetSelectionRange(first - hr, 0, last - hr, widget.columnCount() - 1), true);
    }
    const int row = grid.row() - hr;
    const int col = grid.col() - hc;
    if (row >= 0 && col >= 0 && row < widget.rowCount() && col < widget.columnCount()) {
        widget.setCurrentCell(row, col, QItemSelectionModel::NoUpdate);
    }
}

void paintGrid(QTableWidget &widget, const ui::Grid &grid)
{
    if (paintCells(widget, grid) && grid.rows() < MeasuredRows) {
        widget.resizeColumnsToContents();
    }
    paintSelection(widget, grid);
}

// The user's rows as the model takes them: the anchor first, the moving end (current) last.
QList<int> chosenRows(const QTableWidget &widget, const ui::Grid &grid)
{
    QList<int> rows;
    for (const QModelIndex &index : widget.selectionModel()->selectedRows()) {
        rows.append(index.row() + headRows(grid));
    }
    if (rows.isEmpty()) {
        return rows;
    }
    std::sort(rows.begin(), rows.end());
    const int current = widget.currentRow() + headRows(grid);
    if (current == rows.first()) {
        std::reverse(rows.begin(), rows.end());
    }
    return rows;
}

} // namespace

QWidget *makeGrid(ui::Grid &grid, ViewContext &context)
{
    auto *widget = new QTableWidget;
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget->setSelectionBehavior(QAbstractItemView::SelectRows);
    widget->setSelectionMode(QAbstractItemView::ContiguousSelection);
    widget->horizontalHeader()->setStretchLastSection(true);
    widget->verticalHeader()->setDefaultSectionSize(widget->fontMetrics().height() + 6);
    auto *binding = new ControlBinding(grid, *widget, context);
    binding->watch(*widget->viewport());
    binding->setPaint([widget, &grid] { paintGrid(*widget, grid); });
    // Every press of the mouse on a cell is a Click, whether or not it moves the selection; a
    // selection moved by the keys or by dragging is one when it differs from the model's.
    auto pressed = std::make_shared<bool>(false);
    auto sync = [binding, widget, &grid](bool always) {
        const QList<int> rows = chosenRows(*widget, grid);
        const int col = widget->currentColumn() + headCols(grid);
        if (rows.isEmpty() || col < 0 || col >= grid.cols()) {
            return false;
        }
        if (!always && grid.row() == rows.first() && grid.rowSel() == rows.last()
            && grid.col() == col) {
            return false;
        }
        binding->userEdit([&] {
            // The handler reads the clicked column from the model.
            grid.setCol(col);
            grid.userSelect(rows);
        });
        return true;
    };
    binding->setLeftPressHook([pressed] { *pressed = false; });
    auto moved = [sync, pressed] {
        if (sync(false) && (QApplication::mouseButtons() & Qt::LeftButton)) {
            *pressed = true;
        }
    };
    QObject::connect(widget, &QTableWidget::itemSelectionChanged, binding, moved);
    QObject::connect(widget, &QTableWidget::currentCellChanged, binding, moved);
    QObject::connect(widget, &QTableWidget::cellPressed, binding, [sync, pressed] {
        if (!*pressed) {
            sync(true);
        }
        *pressed = true;
    });
    binding->setRightClickTarget([binding, widget, &grid](QPoint pos) {
        const QModelIndex index = widget->indexAt(pos);
        if (index.isValid()) {
            grid.setRow(index.row() + headRows(grid));
            grid.setCol(index.column() + headCols(grid));
            binding->repaintNow();
        }
    });
    binding->repaintNow();
    return widget;
}

} // namespace uiqt
