#include "ui/qt/TextWidgets.h"

#include "ui/TextBox.h"
#include "ui/qt/ControlBinding.h"
#include "ui/qt/LineEnds.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace uiqt
{

namespace
{

QWidget *makeLineEdit(ui::TextBox &box, ViewContext &context)
{
    auto *widget = new QLineEdit;
    auto *binding = new ControlBinding(box, *widget, context);
    binding->setPaint([widget, &box] {
        widget->setReadOnly(box.locked());
        if (widget->text() != box.text()) {
            widget->setText(box.text());
        }
        if (widget->selectionStart() != box.selStart()
            || widget->selectedText().size() != box.selLength()) {
            if (box.selLength() > 0) {
                widget->setSelection(box.selStart(), box.selLength());
            } else if (widget->cursorPosition() != box.selStart() || widget->hasSelectedText()) {
                widget->setCursorPosition(box.selStart());
            }
        }
    });
    // Text and caret travel together, whichever signal the widget sends first.
    auto edited = [binding, widget, &box] {
        binding->userEdit([&] {
            box.setText(widget->text());
            const bool any = widget->hasSelectedText();
            box.setSelection(any ? widget->selectionStart() : widget->cursorPosition(),
                             any ? int(widget->selectedText().size()) : 0);
        });
    };
    QObject::connect(widget, &QLineEdit::textEdited, binding, edited);
    QObject::connect(widget, &QLineEdit::selectionChanged, binding, edited);
    QObject::connect(widget, &QLineEdit::cursorPositionChanged, binding, edited);
    binding->repaintNow();
    return widget;
}

QWidget *makeTextEditor(ui::TextBox &box, ViewContext &context)
{
    auto *widget = new QPlainTextEdit;
    widget->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto *binding = new ControlBinding(box, *widget, context);
    binding->setPaint([widget, &box] {
        widget->setReadOnly(box.locked());
        const QString text = toEditorText(box.text());
        if (widget->toPlainText() != text) {
            widget->setPlainText(text);
        }
        const int start = toEditorPos(box.text(), box.selStart());
        const int end = toEditorPos(box.text(), box.selStart() + box.selLength());
        QTextCursor cursor = widget->textCursor();
        if (cursor.anchor() != start || cursor.position() != end) {
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            widget->setTextCursor(cursor);
        }
    });
    auto edited = [binding, widget, &box] {
        binding->userEdit([&] {
            const QString text = toProgramText(widget->toPlainText());
            box.setText(text);
            const QTextCursor cursor = widget->textCursor();
            const int start = toProgramPos(text, cursor.selectionStart());
            const int end = toProgramPos(text, cursor.selectionEnd());
            box.setSelection(start, end - start);
        });
    };
    QObject::connect(widget, &QPlainTextEdit::textChanged, binding, edited);
    QObject::connect(widget, &QPlainTextEdit::cursorPositionChanged, binding, edited);
    binding->repaintNow();
    return widget;
}

} // namespace

QWidget *makeTextBox(ui::TextBox &box, ViewContext &context)
{
    return box.multiLine() ? makeTextEditor(box, context) : makeLineEdit(box, context);
}

} // namespace uiqt
