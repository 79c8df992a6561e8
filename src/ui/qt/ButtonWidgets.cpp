#include "ui/qt/ButtonWidgets.h"

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/OptionButton.h"
#include "ui/PictureBox.h"
#include "ui/qt/ControlBinding.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>

#include <memory>

namespace uiqt
{

QWidget *makeLabel(ui::Label &label, ViewContext &context)
{
    auto *widget = new QLabel;
    auto *binding = new ControlBinding(label, *widget, context);
    binding->setClickOnRelease(true);
    binding->setPaint([widget, &label] {
        if (widget->text() != label.caption()) {
            widget->setText(label.caption());
        }
    });
    binding->repaintNow();
    return widget;
}

QWidget *makeFrame(ui::Frame &frame, ViewContext &context)
{
    auto *widget = new QGroupBox;
    auto *binding = new ControlBinding(frame, *widget, context);
    binding->setPaint([widget, &frame] { widget->setTitle(frame.caption()); });
    binding->repaintNow();
    return widget;
}

QWidget *makeButton(ui::Button &button, ViewContext &context)
{
    auto *widget = new QPushButton;
    // Enter in a text box must not press a button: the program's keys are its own.
    widget->setAutoDefault(false);
    auto *binding = new ControlBinding(button, *widget, context);
    binding->setPaint([widget, &button] { widget->setText(button.caption()); });
    QObject::connect(widget, &QPushButton::clicked, binding, [binding, &button] {
        binding->userEdit([&button] { button.fireClick(); });
    });
    binding->repaintNow();
    return widget;
}

QWidget *makeCheckBox(ui::CheckBox &check, ViewContext &context)
{
    auto *widget = new QCheckBox;
    widget->setTristate(false);
    auto *binding = new ControlBinding(check, *widget, context);
    binding->setPaint([widget, &check] {
        widget->setText(check.caption());
        const int value = check.value();
        widget->setCheckState(value == 1       ? Qt::Checked
                                  : value == 2 ? Qt::PartiallyChecked
                                               : Qt::Unchecked);
    });
    QObject::connect(widget, &QCheckBox::clicked, binding, [binding, &check] {
        binding->userEdit([&check] { check.click(); });
    });
    binding->repaintNow();
    return widget;
}

QWidget *makeOptionButton(ui::OptionButton &option, ViewContext &context)
{
    auto *widget = new QRadioButton;
    // The window's option groups decide what excludes what, not the widgets' parents.
    widget->setAutoExclusive(false);
    auto *binding = new ControlBinding(option, *widget, context);
    binding->setPaint([widget, &option] {
        widget->setText(option.caption());
        widget->setChecked(option.value());
    });
    QObject::connect(widget, &QRadioButton::clicked, binding, [binding, &option] {
        binding->userEdit([&option] { option.click(); });
    });
    binding->repaintNow();
    return widget;
}

QWidget *makePictureBox(ui::PictureBox &picture, ViewContext &context)
{
    auto *widget = new QLabel;
    widget->setAlignment(Qt::AlignCenter);
    widget->setFrameShape(QFrame::StyledPanel);
    widget->setMinimumSize(16, 16);
    auto *binding = new ControlBinding(picture, *widget, context);
    binding->setClickOnRelease(true);
    auto shown = std::make_shared<int>(-1);
    binding->setPaint([widget, &picture, &context, shown] {
        if (*shown == picture.generation()) {
            return;
        }
        *shown = picture.generation();
        const QString path = picture.picture().isEmpty() || !context.toHost
            ? picture.picture()
            : context.toHost(picture.picture());
        // A missing or unreadable file shows an empty box, as the control shows nothing.
        const QPixmap pixmap = path.isEmpty() ? QPixmap() : QPixmap(path);
        widget->setPixmap(pixmap);
    });
    binding->repaintNow();
    return widget;
}

} // namespace uiqt
