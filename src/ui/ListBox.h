#pragma once
// A list box: rows of text with an optional number each, a selection, and the current row.
// Rows count from 0. Setting the current row (ListIndex) fires Click, as the original control
// does; marking rows selected does not.

#include "ui/Control.h"

#include <QList>

namespace ui
{

class ListBox : public Control
{
public:
    enum class MultiSelect { None, Simple, Extended };

    QString kind() const override { return QStringLiteral("ListBox"); }

    int listCount() const { return int(m_rows.size()); }

    const QStringList &rows() const { return m_rows; }

    QString list(int row) const;
    void setList(int row, const QString &text);
    long itemData(int row) const;
    void setItemData(int row, long data);

    // Adds at the end, at a given row, or in order when the list is sorted (case-blind).
    void addItem(const QString &text, int row = -1);
    void removeItem(int row);
    void clear();
    void setRows(const QStringList &rows);

    bool sorted() const { return m_sorted; }

    void setSorted(bool sorted) { m_sorted = sorted; }

    MultiSelect multiSelect() const { return m_multi; }

    void setMultiSelect(MultiSelect multi) { m_multi = multi; }

    int listIndex() const { return m_listIndex; }

    void setListIndex(int row);
    bool selected(int row) const;
    void setSelected(int row, bool selected);
    int selCount() const;
    QList<int> selectedRows() const;

    // A user's choice of rows: the selection becomes these rows, the current row the last of
    // them, and Click fires.
    void userSelect(const QList<int> &rows);

    QStringList dumpRows() const override { return m_rows; }

    bool dumpsAsRows() const override { return true; }

    bool isRowSelected(int row) const override { return selected(row); }

protected:
    // Called when a row becomes the current one, before Click fires.
    virtual void rowChosen(int) { }

private:
    QStringList m_rows;
    QList<long> m_data;
    QList<bool> m_selected;
    int m_listIndex = -1;
    bool m_sorted = false;
    MultiSelect m_multi = MultiSelect::None;
};

// A combo box: a list with an edit text; choosing a row sets the text and fires Click, typing
// fires Change.
class ComboBox : public ListBox
{
public:
    QString kind() const override { return QStringLiteral("ComboBox"); }

    const QString &text() const { return m_text; }

    void setText(const QString &text);

    QStringList dumpRows() const override { return {m_text}; }

    bool dumpsAsRows() const override { return false; }

protected:
    void rowChosen(int row) override { m_text = row >= 0 ? list(row) : QString(); }

private:
    QString m_text;
};

} // namespace ui
