#include "ui/qt/RichTextWidget.h"

#include "ui/RichText.h"
#include "ui/qt/Appearance.h"
#include "ui/qt/ControlBinding.h"
#include "ui/qt/LineEnds.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QTextCursor>
#include <QTextEdit>

#include <memory>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

// What the widget shows, to tell a real change of the model from the echo of a user's edit.
struct Painted {
    QString text;
    QList<ui::TextRun> runs;
};

bool sameRuns(const QList<ui::TextRun> &a, const QList<ui::TextRun> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &x, const auto &y) {
        return x.start == y.start && x.length == y.length && x.color == y.color && x.bold == y.bold;
    });
}

// Judged by the glyphs: some monospaced families do not declare themselves so.
bool isFixed(const QFont &font)
{
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(QLatin1Char('i'))
        == metrics.horizontalAdvance(QLatin1Char('W'));
}

QFont fixedFont()
{
    QFont font(u"Courier New"_s);
    font.setStyleHint(QFont::Monospace);
    if (!isFixed(font)) {
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    }
    return font;
}

QTextCharFormat formatOf(const ui::TextRun &run)
{
    QTextCharFormat format;
    const QColor color = toColor(run.color);
    if (color.isValid()) {
        format.setForeground(color);
    }
    format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
    return format;
}

// Writes the text span by span: one insert per run keeps a large document quick to show.
void fill(QTextEdit &widget, const ui::RichText &box)
{
    const QString &text = box.text();
    widget.clear();
    QTextCursor cursor(widget.document());
    cursor.beginEditBlock();
    int at = 0;
    const QTextCharFormat plain;
    for (const ui::TextRun &run : box.runs()) {
        const int start = qBound(at, run.start, int(text.size()));
        const int end = qBound(start, run.start + run.length, int(text.size()));
        if (start > at) {
            cursor.insertText(toEditorText(text.mid(at, start - at)), plain);
        }
        if (end > start) {
            cursor.insertText(toEditorText(text.mid(start, end - start)), formatOf(run));
        }
        at = end;
    }
    if (at < text.size()) {
        cursor.insertText(toEditorText(text.mid(at)), plain);
    }
    cursor.endEditBlock();
}

void showSelection(QTextEdit &widget, const ui::RichText &box)
{
    const int start = toEditorPos(box.text(), box.selStart());
    const int end = toEditorPos(box.text(), box.selStart() + box.selLength());
    QTextCursor cursor = widget.textCursor();
    if (cursor.anchor() != start || cursor.position() != end) {
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        widget.setTextCursor(cursor);
        widget.ensureCursorVisible();
    }
}

// The runs as the model moves them when a span is replaced, which is what the widget shows after
// the user's edit; a handler that colours the text anew then makes a real difference.
QList<ui::TextRun> shiftedRuns(QList<ui::TextRun> runs, int start, int length, int delta)
{
    for (ui::TextRun &run : runs) {
        if (run.start >= start + length) {
            run.start += delta;
        } else if (run.start + run.length > start) {
            run.length = qMax(0, run.length + delta);
        }
    }
    return runs;
}

// The user's edit as a replacement of one span: the common head and tail stay.
void replaceChangedSpan(ui::RichText &box, const QString &now, Painted &painted)
{
    const QString was = box.text();
    if (was == now) {
        return;
    }
    int head = 0;
    const int shorter = int(qMin(was.size(), now.size()));
    while (head < shorter && was.at(head) == now.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < shorter - head
           && was.at(was.size() - 1 - tail) == now.at(now.size() - 1 - tail)) {
        ++tail;
    }
    const int length = int(was.size()) - head - tail;
    const QString inserted = now.mid(head, now.size() - head - tail);
    painted.text = now;
    painted.runs = shiftedRuns(box.runs(), head, length, int(inserted.size()) - length);
    box.setSelection(head, length);
    box.setSelText(inserted);
}

} // namespace

QWidget *makeRichText(ui::RichText &box, ViewContext &context)
{
    auto *widget = new QTextEdit;
    widget->setAcceptRichText(false);
    widget->setLineWrapMode(QTextEdit::NoWrap);
    widget->setFont(fixedFont());
    auto *binding = new ControlBinding(box, *widget, context);
    auto painted = std::make_shared<Painted>();
    binding->setPaint([widget, &box, painted] {
        if (painted->text != box.text() || !sameRuns(painted->runs, box.runs())) {
            fill(*widget, box);
            painted->text = box.text();
            painted->runs = box.runs();
        }
        showSelection(*widget, box);
    });
    auto edited = [binding, widget, &box, painted] {
        binding->userEdit([&] {
            replaceChangedSpan(box, toProgramText(widget->toPlainText()), *painted);
            const QTextCursor cursor = widget->textCursor();
            const int start = toProgramPos(box.text(), cursor.selectionStart());
            const int end = toProgramPos(box.text(), cursor.selectionEnd());
            box.setSelection(start, end - start);
        });
    };
    QObject::connect(widget, &QTextEdit::textChanged, binding, edited);
    QObject::connect(widget, &QTextEdit::cursorPositionChanged, binding, edited);
    QObject::connect(widget, &QTextEdit::selectionChanged, binding, edited);
    binding->repaintNow();
    return widget;
}

} // namespace uiqt
