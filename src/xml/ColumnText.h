#pragma once
// Text written the way a file opened for output is printed to: the writer knows its column, and
// moving to a column that lies behind starts a new line first.

#include <QString>

namespace xml
{

class ColumnText
{
public:
    // Printed text; a line break inside it starts the count of columns again.
    void print(const QString &text)
    {
        m_text += text;
        const qsizetype lastBreak =
            std::max(text.lastIndexOf(QLatin1Char('\n')), text.lastIndexOf(QLatin1Char('\r')));
        m_column = lastBreak < 0 ? m_column + int(text.size()) : int(text.size() - lastBreak);
    }

    void endLine()
    {
        m_text += QStringLiteral("\r\n");
        m_column = 1;
    }

    // Columns count from 1: past the column, a new line starts; then blanks fill up to it.
    void moveTo(int column)
    {
        if (m_column > column) {
            endLine();
        }
        if (m_column < column) {
            m_text += QString(column - m_column, QLatin1Char(' '));
            m_column = column;
        }
    }

    int column() const { return m_column; }

    const QString &text() const { return m_text; }

    void reserve(qsizetype size) { m_text.reserve(size); }

private:
    QString m_text;
    int m_column = 1;
};

} // namespace xml
