#include "ui/qt/BarWidgets.h"

#include "ui/ProgressBar.h"
#include "ui/StatusBar.h"
#include "ui/TabStrip.h"
#include "ui/qt/Appearance.h"
#include "ui/qt/ControlBinding.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

namespace uiqt
{

namespace
{

// Clock panels show the time to the minute; a tick twice a minute keeps them right.
constexpr int ClockTickMs = 30000;

QString panelText(const ui::StatusPanel &panel)
{
    const QDateTime now = QDateTime::currentDateTime();
    switch (panel.style) {
    case ui::StatusPanel::Style::Time:
        return QLocale().toString(now.time(), QLocale::ShortFormat);
    case ui::StatusPanel::Style::Date:
        return QLocale().toString(now.date(), QLocale::ShortFormat);
    case ui::StatusPanel::Style::Text:
        break;
    }
    return panel.text;
}

void paintPanels(QWidget &bar, const ui::StatusBar &model)
{
    auto *layout = static_cast<QHBoxLayout *>(bar.layout());
    QList<QLabel *> labels = bar.findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
    while (labels.size() > model.panelCount()) {
        delete labels.takeLast();
    }
    while (labels.size() < model.panelCount()) {
        auto *label = new QLabel(&bar);
        label->setFrameShape(QFrame::Panel);
        label->setFrameShadow(QFrame::Sunken);
        layout->addWidget(label);
        labels.append(label);
    }
    for (int n = 1; n <= model.panelCount(); ++n) {
        const ui::StatusPanel &panel = model.panel(n);
        QLabel *label = labels.at(n - 1);
        label->setText(panelText(panel));
        label->setMinimumWidth(toPixels(panel.minWidth));
        layout->setStretchFactor(label, panel.autoSize ? 1 : 0);
    }
}

} // namespace

QWidget *makeStatusBar(ui::StatusBar &bar, ViewContext &context)
{
    auto *widget = new QWidget;
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    auto *binding = new ControlBinding(bar, *widget, context);
    binding->setPaint([widget, &bar] { paintPanels(*widget, bar); });
    auto *clock = new QTimer(widget);
    clock->setInterval(ClockTickMs);
    QObject::connect(clock, &QTimer::timeout, binding, [binding] { binding->repaintNow(); });
    clock->start();
    binding->repaintNow();
    return widget;
}

QWidget *makeProgressBar(ui::ProgressBar &bar, ViewContext &context)
{
    auto *widget = new QProgressBar;
    widget->setTextVisible(false);
    auto *binding = new ControlBinding(bar, *widget, context);
    binding->setPaint([widget, &bar] {
        widget->setRange(bar.min(), bar.max());
        widget->setValue(bar.value());
    });
    binding->repaintNow();
    return widget;
}

QWidget *makeSlider(ui::ProgressBar &slider, ViewContext &context)
{
    auto *widget = new QSlider(Qt::Horizontal);
    widget->setTickPosition(QSlider::TicksBelow);
    auto *binding = new ControlBinding(slider, *widget, context);
    binding->setPaint([widget, &slider] {
        widget->setRange(slider.min(), slider.max());
        widget->setValue(slider.value());
    });
    QObject::connect(widget, &QSlider::valueChanged, binding, [binding, &slider](int value) {
        binding->userEdit([&] { slider.setValue(value); });
    });
    binding->repaintNow();
    return widget;
}

QWidget *makeTabStrip(ui::TabStrip &tabs, ViewContext &context, bool withPages)
{
    if (withPages) {
        auto *widget = new QTabWidget;
        auto *binding = new ControlBinding(tabs, *widget, context);
        binding->setPaint([widget, &tabs] {
            const QStringList &captions = tabs.tabCaptions();
            for (int i = 0; i < captions.size(); ++i) {
                tabPage(*widget, i);
                widget->setTabText(i, captions.at(i));
            }
            if (tabs.tab() >= 0 && tabs.tab() < widget->count()) {
                widget->setCurrentIndex(tabs.tab());
            }
        });
        QObject::connect(widget, &QTabWidget::currentChanged, binding, [binding, &tabs](int tab) {
            binding->userEdit([&] { tabs.setTab(tab); });
        });
        binding->repaintNow();
        return widget;
    }
    auto *widget = new QTabBar;
    widget->setExpanding(false);
    widget->setDrawBase(true);
    auto *binding = new ControlBinding(tabs, *widget, context);
    binding->setPaint([widget, &tabs] {
        const QStringList &captions = tabs.tabCaptions();
        while (widget->count() > captions.size()) {
            widget->removeTab(widget->count() - 1);
        }
        for (int i = 0; i < captions.size(); ++i) {
            if (i < widget->count()) {
                widget->setTabText(i, captions.at(i));
            } else {
                widget->addTab(captions.at(i));
            }
        }
        if (tabs.tab() >= 0 && tabs.tab() < widget->count()) {
            widget->setCurrentIndex(tabs.tab());
        }
    });
    QObject::connect(widget, &QTabBar::currentChanged, binding, [binding, &tabs](int tab) {
        binding->userEdit([&] { tabs.setTab(tab); });
    });
    binding->repaintNow();
    return widget;
}

QWidget *tabPage(QWidget &tabStrip, int tab)
{
    auto *tabs = qobject_cast<QTabWidget *>(&tabStrip);
    if (!tabs || tab < 0) {
        return nullptr;
    }
    // A first page becomes the current one; that is no choice of the user's.
    const QSignalBlocker quiet(tabs);
    while (tabs->count() <= tab) {
        tabs->addTab(new QWidget, QString());
    }
    return tabs->widget(tab);
}

} // namespace uiqt
