#include "ui/RichText.h"

#include <algorithm>

namespace ui
{

namespace
{

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

} // namespace

void RichText::setText(const QString &text)
{
    m_rtf.clear();
    m_runs.clear();
    const bool differs = m_text != text;
    m_text = text;
    m_selStart = 0;
    m_selLength = 0;
    changed();
    if (differs) {
        fireChange();
    }
}

void RichText::setTextRtf(const QString &rtf)
{
    RichTextContent content = readRtf(rtf);
    const bool differs = m_text != content.text;
    m_rtf = rtf;
    m_text = std::move(content.text);
    m_runs = std::move(content.runs);
    m_selStart = 0;
    m_selLength = 0;
    changed();
    if (differs) {
        fireChange();
    }
}

void RichText::setSelection(int start, int length)
{
    m_selStart = qBound(0, start, int(m_text.size()));
    m_selLength = qBound(0, length, int(m_text.size()) - m_selStart);
    changed();
}

void RichText::setSelText(const QString &text)
{
    m_text.replace(m_selStart, m_selLength, text);
    const int delta = int(text.size()) - m_selLength;
    for (TextRun &run : m_runs) {
        if (run.start >= m_selStart + m_selLength) {
            run.start += delta;
        } else if (run.start + run.length > m_selStart) {
            run.length = qMax(0, run.length + delta);
        }
    }
    m_selStart += int(text.size());
    m_selLength = 0;
    changed();
    fireChange();
}

void RichText::setSelColor(int color)
{
    setRun(m_selStart, m_selLength, color, -1);
}

void RichText::setSelBold(bool bold)
{
    setRun(m_selStart, m_selLength, -2, bold ? 1 : 0);
}

// Splits the runs at the range's ends and restyles what lies inside; color -2 and bold -1 keep
// what a run has.
void RichText::setRun(int start, int length, int color, int bold)
{
    if (length <= 0) {
        return;
    }
    const int end = start + length;
    QList<TextRun> out;
    int covered = 0;
    auto restyle = [&](TextRun run) {
        if (color != -2) {
            run.color = color;
        }
        if (bold != -1) {
            run.bold = bold == 1;
        }
        return run;
    };
    for (const TextRun &run : m_runs) {
        const int runEnd = run.start + run.length;
        if (runEnd <= start || run.start >= end) {
            out.append(run);
        } else {
            if (run.start < start) {
                out.append(TextRun{run.start, start - run.start, run.color, run.bold});
            }
            const int s = qMax(run.start, start);
            const int e = qMin(runEnd, end);
            out.append(restyle(TextRun{s, e - s, run.color, run.bold}));
            covered += e - s;
            if (runEnd > end) {
                out.append(TextRun{end, runEnd - end, run.color, run.bold});
            }
        }
    }
    if (covered < length) {
        // Text without runs yet: give the whole range one run of its own.
        out.erase(
            std::remove_if(out.begin(),
                           out.end(),
                           [&](const TextRun &r) { return r.start >= start && r.start < end; }),
            out.end());
        out.append(restyle(TextRun{start, length, -1, false}));
        std::sort(out.begin(), out.end(), [](const TextRun &a, const TextRun &b) {
            return a.start < b.start;
        });
    }
    m_runs = out;
    changed();
}

int RichText::find(const QString &term, int start, int end, int options)
{
    if (term.isEmpty()) {
        return -1;
    }
    const int limit = end < 0 ? int(m_text.size()) : qMin(end, int(m_text.size()));
    const Qt::CaseSensitivity cs = (options & MatchCase) ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int pos = qMax(0, start);
    while (true) {
        pos = int(m_text.indexOf(term, pos, cs));
        if (pos < 0 || pos + term.size() > limit) {
            return -1;
        }
        const bool wordBefore = pos > 0 && isWordChar(m_text.at(pos - 1));
        const int after = pos + int(term.size());
        const bool wordAfter = after < m_text.size() && isWordChar(m_text.at(after));
        if (!(options & WholeWord) || (!wordBefore && !wordAfter)) {
            break;
        }
        ++pos;
    }
    if (!(options & NoHighlight)) {
        setSelection(pos, int(term.size()));
    }
    return pos;
}

} // namespace ui
