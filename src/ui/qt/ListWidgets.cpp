#include "ui/qt/ListWidgets.h"

#include "ui/FileList.h"
#include "ui/ListBox.h"
#include "ui/qt/ControlBinding.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

QAbstractItemView::SelectionMode selectionMode(ui::ListBox::MultiSelect multi)
{
    switch (multi) {
    case ui::ListBox::MultiSelect::Simple:
        return QAbstractItemView::MultiSelection;
    case ui::ListBox::MultiSelect::Extended:
        return QAbstractItemView::ExtendedSelection;
    case ui::ListBox::MultiSelect::None:
        break;
    }
    return QAbstractItemView::SingleSelection;
}

// Brings the rows up to the model's, keeping the rows they share at the top: a handler that
// adds a row at each step of a walk, yielding between steps, appends one row per repaint.
void paintRows(QListWidget &widget, const QStringList &rows)
{
    int same = 0;
    const int shared = qMin(widget.count(), int(rows.size()));
    while (same < shared && widget.item(same)->text() == rows.at(same)) {
        ++same;
    }
    if (same == 0) {
        widget.clear();
    }
    while (widget.count() > same) {
        delete widget.takeItem(widget.count() - 1);
    }
    if (same < rows.size()) {
        widget.addItems(rows.mid(same));
    }
}

void paintList(QListWidget &widget, const ui::ListBox &list)
{
    widget.setSelectionMode(selectionMode(list.multiSelect()));
    paintRows(widget, list.rows());
    for (int i = 0; i < widget.count(); ++i) {
        QListWidgetItem *item = widget.item(i);
        const bool selected = list.selected(i);
        if (item->isSelected() != selected) {
            item->setSelected(selected);
        }
    }
    if (list.listIndex() >= 0 && widget.currentRow() != list.listIndex()) {
        widget.setCurrentRow(list.listIndex(), QItemSelectionModel::NoUpdate);
        widget.scrollToItem(widget.currentItem());
    }
}

// The rows the user has chosen, the current one last, as the model takes a choice.
QList<int> chosenRows(const QListWidget &widget)
{
    QList<int> rows;
    for (const QModelIndex &index : widget.selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    const int current = widget.currentRow();
    if (rows.removeOne(current)) {
        rows.append(current);
    }
    return rows;
}

QString joinPath(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('\\')) ? folder + name : folder + u"\\"_s + name;
}

void paintCombo(QComboBox &widget, const ui::ListBox &list)
{
    QStringList texts;
    for (int i = 0; i < widget.count(); ++i) {
        texts.append(widget.itemText(i));
    }
    if (texts != list.rows()) {
        widget.clear();
        widget.addItems(list.rows());
    }
    if (widget.currentIndex() != list.listIndex()) {
        widget.setCurrentIndex(list.listIndex());
    }
}

} // namespace

QWidget *makeListBox(ui::ListBox &list, ViewContext &context)
{
    auto *widget = new QListWidget;
    auto *binding = new ControlBinding(list, *widget, context);
    binding->watch(*widget->viewport());
    binding->setPaint([widget, &list] { paintList(*widget, list); });
    QObject::connect(widget, &QListWidget::itemSelectionChanged, binding, [binding, widget, &list] {
        const QList<int> rows = chosenRows(*widget);
        if (binding->focusArriving()) {
            binding->repaintLater();
        } else if (rows != list.selectedRows()
                   || (!rows.isEmpty() && rows.last() != list.listIndex())) {
            binding->userEdit([&] { list.userSelect(rows); });
        }
    });
    if (auto *dirs = dynamic_cast<ui::DirList *>(&list)) {
        QObject::connect(
            widget, &QListWidget::itemActivated, binding, [binding, dirs](QListWidgetItem *item) {
                const QString name = item->text();
                binding->userEdit([&] { dirs->setPath(joinPath(dirs->path(), name)); });
            });
    }
    binding->repaintNow();
    return widget;
}

QWidget *makeComboBox(ui::ComboBox &combo, ViewContext &context)
{
    auto *widget = new QComboBox;
    widget->setEditable(true);
    widget->setInsertPolicy(QComboBox::NoInsert);
    auto *binding = new ControlBinding(combo, *widget, context);
    binding->watch(*widget->lineEdit());
    binding->setPaint([widget, &combo] {
        paintCombo(*widget, combo);
        if (widget->currentText() != combo.text()) {
            widget->setEditText(combo.text());
        }
    });
    QObject::connect(widget, &QComboBox::activated, binding, [binding, &combo](int row) {
        binding->userEdit([&] { combo.setListIndex(row); });
    });
    QObject::connect(widget->lineEdit(),
                     &QLineEdit::textEdited,
                     binding,
                     [binding, &combo](const QString &text) {
                         binding->userEdit([&] { combo.setText(text); });
                     });
    binding->repaintNow();
    return widget;
}

QWidget *makeDriveList(ui::DriveList &drives, ViewContext &context)
{
    auto *widget = new QComboBox;
    auto *binding = new ControlBinding(drives, *widget, context);
    binding->setPaint([widget, &drives] {
        paintCombo(*widget, drives);
        // The drive names its row by the row's start ("c:" for "c: [System]").
        const int row = widget->findText(drives.drive(), Qt::MatchStartsWith);
        if (row >= 0 && widget->currentIndex() != row) {
            widget->setCurrentIndex(row);
        }
    });
    QObject::connect(widget, &QComboBox::activated, binding, [binding, widget, &drives](int row) {
        const QString text = widget->itemText(row);
        binding->userEdit([&] { drives.setDrive(text); });
    });
    binding->repaintNow();
    return widget;
}

} // namespace uiqt
