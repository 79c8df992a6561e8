#include "ui/qt/Arranger.h"

#include "ui/Control.h"
#include "ui/Window.h"
#include "ui/qt/Appearance.h"
#include "ui/qt/BarWidgets.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRect>
#include <QSet>
#include <QVBoxLayout>

#include <map>

using namespace Qt::StringLiterals;

namespace uiqt
{

namespace
{

// A group box draws its title and frame inside its own rectangle; children placed at the
// program's coordinates need this much room beyond the farthest of them.
constexpr int FrameMargin = 8;

struct Slot {
    const ui::Control *control;
    QWidget *widget;
    const ui::LayoutHint *hint;
};

bool isPlacedAt(const ui::LayoutHint *hint)
{
    return hint && hint->left >= 0 && hint->top >= 0;
}

// Kinds that take the place beside a label in a form row.
bool isField(const ui::Control &control)
{
    static const QSet<QString> fields{
        u"TextBox"_s, u"ComboBox"_s, u"DriveList"_s, u"Slider"_s, u"ProgressBar"_s};
    return fields.contains(control.kind());
}

bool grows(const QWidget &widget)
{
    return widget.sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag;
}

QSize hintedSize(const Slot &slot)
{
    const QSize natural = slot.widget->sizeHint();
    return {slot.hint->width > 0 ? toPixels(slot.hint->width) : natural.width(),
            slot.hint->height > 0 ? toPixels(slot.hint->height) : natural.height()};
}

// Places controls at their coordinates; gives the rectangle they cover.
QRect placeAt(QWidget &area, const std::vector<Slot> &slots)
{
    QRect covered;
    for (const Slot &slot : slots) {
        slot.widget->setParent(&area);
        const QRect rect(QPoint(toPixels(slot.hint->left), toPixels(slot.hint->top)),
                         hintedSize(slot));
        slot.widget->setGeometry(rect);
        covered = covered.united(rect);
    }
    return covered;
}

// Stacks controls as form rows: a label with the field after it, a run of buttons on one row,
// anything else across the row. Gives true when a row can take spare height.
bool stack(QFormLayout &form, const std::vector<Slot> &slots)
{
    bool growing = false;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const Slot &slot = slots.at(i);
        if (slot.hint && slot.hint->width > 0) {
            slot.widget->setMinimumWidth(toPixels(slot.hint->width));
        }
        if (slot.hint && slot.hint->height > 0) {
            slot.widget->setMinimumHeight(toPixels(slot.hint->height));
        }
        growing = growing || grows(*slot.widget);
        const QString kind = slot.control->kind();
        if (kind == u"Label"_s && i + 1 < slots.size() && isField(*slots.at(i + 1).control)) {
            QWidget *field = slots.at(i + 1).widget;
            if (auto *label = qobject_cast<QLabel *>(slot.widget)) {
                label->setBuddy(field);
            }
            form.addRow(slot.widget, field);
            ++i;
        } else if (kind == u"Button"_s) {
            auto *row = new QHBoxLayout;
            row->addStretch(1);
            while (i < slots.size() && slots.at(i).control->kind() == u"Button"_s) {
                row->addWidget(slots.at(i).widget);
                ++i;
            }
            --i;
            form.addRow(row);
        } else {
            form.addRow(slot.widget);
        }
    }
    return growing;
}

void fillContainer(QWidget &container, const std::vector<Slot> &slots, bool isFrame)
{
    std::vector<Slot> placed;
    std::vector<Slot> stacked;
    for (const Slot &slot : slots) {
        (isPlacedAt(slot.hint) ? placed : stacked).push_back(slot);
    }
    if (stacked.empty()) {
        const QRect covered = placeAt(container, placed);
        const int margin = isFrame ? FrameMargin : 0;
        container.setMinimumSize(covered.right() + 1 + margin, covered.bottom() + 1 + margin);
        return;
    }
    auto *column = new QVBoxLayout(&container);
    if (!placed.empty()) {
        // Controls at coordinates keep them on a canvas above the stacked ones.
        auto *canvas = new QWidget(&container);
        const QRect covered = placeAt(*canvas, placed);
        canvas->setMinimumSize(covered.right() + 1, covered.bottom() + 1);
        column->addWidget(canvas);
    }
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    column->addLayout(form, 1);
    if (!stack(*form, stacked)) {
        column->addStretch(1);
    }
}

} // namespace

namespace
{

// Where each control goes, and how deep each container lies, so that inner containers are filled
// (and so sized) before the ones holding them.
class Containers
{
public:
    Containers(const ui::Window &window, const std::vector<PlacedControl> &controls, QWidget &body)
        : m_window(window)
        , m_body(body)
    {
        for (const PlacedControl &entry : controls) {
            m_byName[entry.control->name().toLower()] = entry;
        }
    }

    QWidget *containerOf(const ui::Control &control)
    {
        const ui::LayoutHint *hint = m_window.layout(control.name());
        if (!hint || hint->container.isEmpty()) {
            return &m_body;
        }
        const auto it = m_byName.find(hint->container.toLower());
        if (it == m_byName.end() || it->second.control == &control) {
            return &m_body;
        }
        QWidget *holder = it->second.widget;
        QWidget *page = tabPage(*holder, hint->tab);
        m_holderOf[page ? page : holder] = it->second.control;
        return page ? page : holder;
    }

    int depth(QWidget *container)
    {
        int d = 0;
        // The hint chain ends at the body; a chain longer than the controls is a loop.
        while (container != &m_body && d <= int(m_byName.size())) {
            const auto it = m_holderOf.find(container);
            if (it == m_holderOf.end()) {
                break;
            }
            container = containerOf(*it->second);
            ++d;
        }
        return d;
    }

private:
    const ui::Window &m_window;
    QWidget &m_body;
    std::map<QString, PlacedControl> m_byName;
    std::map<QWidget *, const ui::Control *> m_holderOf;
};

} // namespace

void arrangeControls(const ui::Window &window,
                     const std::vector<PlacedControl> &controls,
                     QWidget &body)
{
    Containers containers(window, controls, body);
    std::vector<QWidget *> order{&body};
    std::map<QWidget *, std::vector<Slot>> slots;
    for (const PlacedControl &entry : controls) {
        QWidget *container = containers.containerOf(*entry.control);
        if (!slots.count(container) && container != &body) {
            order.push_back(container);
        }
        slots[container].push_back(
            Slot{entry.control, entry.widget, window.layout(entry.control->name())});
    }
    std::stable_sort(order.begin(), order.end(), [&](QWidget *a, QWidget *b) {
        return containers.depth(a) > containers.depth(b);
    });
    for (QWidget *container : order) {
        fillContainer(
            *container, slots[container], qobject_cast<QGroupBox *>(container) != nullptr);
    }
}

} // namespace uiqt
