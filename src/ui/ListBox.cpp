#include "ui/ListBox.h"

#include "core/platform/Failure.h"

namespace ui
{

namespace
{

void checkRow(int row, int count)
{
    // The original control raises "Invalid property array index" (381); the traps of the windows
    // treat every out-of-range index alike, so the subscript failure serves.
    if (row < 0 || row >= count) {
        platform::raise(platform::SubscriptOutOfRange);
    }
}

} // namespace

QString ListBox::list(int row) const
{
    // Reading one row past the end gives an empty text in the original control.
    if (row == listCount()) {
        return {};
    }
    checkRow(row, listCount());
    return m_rows.at(row);
}

void ListBox::setList(int row, const QString &text)
{
    checkRow(row, listCount());
    m_rows[row] = text;
    changed();
}

long ListBox::itemData(int row) const
{
    checkRow(row, listCount());
    return m_data.at(row);
}

void ListBox::setItemData(int row, long data)
{
    checkRow(row, listCount());
    m_data[row] = data;
}

void ListBox::addItem(const QString &text, int row)
{
    if (row < 0 && m_sorted) {
        row = 0;
        while (row < listCount() && m_rows.at(row).compare(text, Qt::CaseInsensitive) <= 0) {
            ++row;
        }
    }
    if (row < 0 || row > listCount()) {
        if (row > listCount()) {
            platform::raise(platform::InvalidArgument);
        }
        row = listCount();
    }
    m_rows.insert(row, text);
    m_data.insert(row, 0);
    m_selected.insert(row, false);
    if (m_listIndex >= row) {
        ++m_listIndex;
    }
    changed();
}

void ListBox::removeItem(int row)
{
    checkRow(row, listCount());
    m_rows.removeAt(row);
    m_data.removeAt(row);
    m_selected.removeAt(row);
    if (m_listIndex == row) {
        m_listIndex = -1;
    } else if (m_listIndex > row) {
        --m_listIndex;
    }
    changed();
}

void ListBox::clear()
{
    m_rows.clear();
    m_data.clear();
    m_selected.clear();
    m_listIndex = -1;
    changed();
}

void ListBox::setRows(const QStringList &rows)
{
    m_rows = rows;
    if (m_sorted) {
        std::stable_sort(m_rows.begin(), m_rows.end(), [](const QString &a, const QString &b) {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        });
    }
    m_data = QList<long>(m_rows.size(), 0);
    m_selected = QList<bool>(m_rows.size(), false);
    m_listIndex = -1;
    changed();
}

void ListBox::setListIndex(int row)
{
    if (row < -1 || row >= listCount()) {
        platform::raise(platform::InvalidArgument);
    }
    if (m_multi == MultiSelect::None) {
        m_selected.fill(false);
    }
    if (row >= 0) {
        m_selected[row] = true;
    }
    const bool moved = m_listIndex != row;
    m_listIndex = row;
    if (moved) {
        rowChosen(row);
    }
    changed();
    if (moved) {
        fireClick();
    }
}

bool ListBox::selected(int row) const
{
    checkRow(row, listCount());
    return m_selected.at(row);
}

void ListBox::setSelected(int row, bool selected)
{
    checkRow(row, listCount());
    if (m_multi == MultiSelect::None && selected) {
        m_selected.fill(false);
        m_listIndex = row;
    }
    m_selected[row] = selected;
    changed();
}

int ListBox::selCount() const
{
    return int(m_selected.count(true));
}

QList<int> ListBox::selectedRows() const
{
    QList<int> rows;
    for (int i = 0; i < listCount(); ++i) {
        if (m_selected.at(i)) {
            rows.append(i);
        }
    }
    return rows;
}

void ListBox::userSelect(const QList<int> &rows)
{
    for (const int row : rows) {
        checkRow(row, listCount());
    }
    m_selected.fill(false);
    for (const int row : rows) {
        m_selected[row] = true;
    }
    m_listIndex = rows.isEmpty() ? -1 : rows.last();
    rowChosen(m_listIndex);
    changed();
    fireClick();
}

void ComboBox::setText(const QString &text)
{
    if (m_text != text) {
        m_text = text;
        changed();
        fireChange();
    }
}

} // namespace ui
