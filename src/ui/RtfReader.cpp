#include "ui/RtfReader.h"

#include <QStringView>

#include <vector>

namespace ui
{

namespace
{

struct GroupState {
    int colorIndex = 0;
    bool bold = false;
    bool skip = false; // inside a destination that holds no text (font table, colour table)
};

class Reader
{
public:
    explicit Reader(const QString &rtf)
        : m_rtf(rtf)
    {
    }

    RichTextContent read()
    {
        std::vector<GroupState> stack{GroupState{}};
        while (m_pos < m_rtf.size()) {
            const QChar c = m_rtf.at(m_pos);
            if (c == QLatin1Char('{')) {
                stack.push_back(stack.back());
                ++m_pos;
                m_groupStart = true;
            } else if (c == QLatin1Char('}')) {
                if (stack.size() > 1) {
                    stack.pop_back();
                }
                ++m_pos;
                m_groupStart = false;
            } else if (c == QLatin1Char('\\')) {
                controlWord(stack.back());
            } else {
                ++m_pos;
                m_groupStart = false;
                // Line ends in the source are layout only; \par makes paragraphs.
                if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) {
                    plainChar(stack.back(), c);
                }
            }
        }
        return m_out;
    }

private:
    void controlWord(GroupState &state)
    {
        ++m_pos;
        if (m_pos >= m_rtf.size()) {
            return;
        }
        const QChar c = m_rtf.at(m_pos);
        if (!c.isLetter()) {
            symbol(state, c);
            return;
        }
        const qsizetype wordStart = m_pos;
        while (m_pos < m_rtf.size() && m_rtf.at(m_pos).isLetter()) {
            ++m_pos;
        }
        const QString word = m_rtf.mid(wordStart, m_pos - wordStart);
        const qsizetype numberStart = m_pos;
        if (m_pos < m_rtf.size() && m_rtf.at(m_pos) == QLatin1Char('-')) {
            ++m_pos;
        }
        while (m_pos < m_rtf.size() && m_rtf.at(m_pos).isDigit()) {
            ++m_pos;
        }
        const bool hasNumber = m_pos > numberStart;
        const int number = hasNumber ? m_rtf.mid(numberStart, m_pos - numberStart).toInt() : 0;
        if (m_pos < m_rtf.size() && m_rtf.at(m_pos) == QLatin1Char(' ')) {
            ++m_pos;
        }
        apply(state, word, hasNumber, number);
        m_groupStart = false;
    }

    void symbol(GroupState &state, QChar c)
    {
        ++m_pos;
        if (c == QLatin1Char('\'')) {
            const int code = m_rtf.mid(m_pos, 2).toInt(nullptr, 16);
            m_pos += 2;
            plainChar(state, QChar(code));
        } else if (c == QLatin1Char('*')) {
            state.skip = true;
        } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            plainText(state, QStringLiteral("\r\n"));
        } else {
            plainChar(state, c);
        }
        m_groupStart = false;
    }

    void apply(GroupState &state, const QString &word, bool hasNumber, int number)
    {
        if (m_groupStart
            && (word == QLatin1String("fonttbl") || word == QLatin1String("stylesheet")
                || word == QLatin1String("info"))) {
            state.skip = true;
        } else if (m_groupStart && word == QLatin1String("colortbl")) {
            state.skip = true;
            readColorTable();
        } else if (word == QLatin1String("cf")) {
            state.colorIndex = number;
        } else if (word == QLatin1String("b")) {
            state.bold = !hasNumber || number != 0;
        } else if (word == QLatin1String("plain")) {
            state.colorIndex = 0;
            state.bold = false;
        } else if (word == QLatin1String("par") || word == QLatin1String("line")) {
            plainText(state, QStringLiteral("\r\n"));
        } else if (word == QLatin1String("tab")) {
            plainChar(state, QLatin1Char('\t'));
        }
    }

    // The colour table: entries of \redN\greenN\blueN, each ended by ";"; an empty first entry is
    // the default colour.
    void readColorTable()
    {
        int red = 0;
        int green = 0;
        int blue = 0;
        bool any = false;
        while (m_pos < m_rtf.size() && m_rtf.at(m_pos) != QLatin1Char('}')) {
            const QChar c = m_rtf.at(m_pos);
            if (c == QLatin1Char(';')) {
                m_colors.append(any ? (blue << 16) | (green << 8) | red : -1);
                red = green = blue = 0;
                any = false;
                ++m_pos;
            } else if (c == QLatin1Char('\\')) {
                const qsizetype start = ++m_pos;
                while (m_pos < m_rtf.size() && m_rtf.at(m_pos).isLetter()) {
                    ++m_pos;
                }
                const QString word = m_rtf.mid(start, m_pos - start);
                const qsizetype numberStart = m_pos;
                while (m_pos < m_rtf.size() && m_rtf.at(m_pos).isDigit()) {
                    ++m_pos;
                }
                const int value = m_rtf.mid(numberStart, m_pos - numberStart).toInt();
                any = true;
                if (word == QLatin1String("red")) {
                    red = value;
                } else if (word == QLatin1String("green")) {
                    green = value;
                } else if (word == QLatin1String("blue")) {
                    blue = value;
                }
            } else {
                ++m_pos;
            }
        }
    }

    void plainChar(const GroupState &state, QChar c) { plainText(state, QString(c)); }

    void plainText(const GroupState &state, const QString &text)
    {
        if (state.skip) {
            return;
        }
        const int color = state.colorIndex >= 0 && state.colorIndex < m_colors.size()
            ? m_colors.at(state.colorIndex)
            : -1;
        const int start = int(m_out.text.size());
        m_out.text += text;
        if (!m_out.runs.isEmpty()) {
            TextRun &last = m_out.runs.last();
            if (last.color == color && last.bold == state.bold
                && last.start + last.length == start) {
                last.length += int(text.size());
                return;
            }
        }
        m_out.runs.append(TextRun{start, int(text.size()), color, state.bold});
    }

    const QString &m_rtf;
    qsizetype m_pos = 0;
    bool m_groupStart = false;
    QList<int> m_colors;
    RichTextContent m_out;
};

} // namespace

RichTextContent readRtf(const QString &rtf)
{
    return Reader(rtf).read();
}

} // namespace ui
