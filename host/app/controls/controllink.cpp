#include "app/controls/controllink.h"

#include <zorv/editors/framework/widgetcontrol.h>

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>

namespace App {

using Zorv::WidgetControl;

namespace {

/// Increments a counter for its lifetime.
class Counting
{
public:
    explicit Counting(int* counter) : m_counter(counter) { ++*m_counter; }
    ~Counting() { --*m_counter; }

private:
    Q_DISABLE_COPY(Counting)

    int* m_counter;
};

struct Signatures
{
    const char* changed;
    const char* set;
};

// The slots and signals of ControlLink for a kind of control.
Signatures signaturesOf(WidgetControl::Kind kind)
{
    switch (kind) {
    case WidgetControl::Slider:
    case WidgetControl::SpinEdit:
    case WidgetControl::ComboBox:
        return {SIGNAL(numberChanged(int)), SLOT(setNumber(int))};
    case WidgetControl::FloatEdit:
        return {SIGNAL(realChanged(double)), SLOT(setReal(double))};
    case WidgetControl::CheckBox:
        return {SIGNAL(switched(bool)), SLOT(setOn(bool))};
    case WidgetControl::Label:
        return {nullptr, SLOT(setText(QString))};
    case WidgetControl::ListView:
    case WidgetControl::TreeView:
        break;
    }
    return {SIGNAL(rowChosen(QModelIndex)), nullptr};
}

}  // namespace

ControlLink::ControlLink(QWidget* field, const WidgetControl& control)
    : QObject(field), m_field(field)
{
    connectField(control);
    if (control.receiver()) {
        connectReceiver(control);
    }
}

void ControlLink::connectField(const WidgetControl& control)
{
    const auto tellNumber = [this](int value) {
        if (m_setting == 0) {
            emit numberChanged(value);
        }
    };
    if (auto* slider = qobject_cast<QAbstractSlider*>(m_field)) {
        connect(slider, &QAbstractSlider::valueChanged, this, tellNumber);
    } else if (auto* spin = qobject_cast<QSpinBox*>(m_field)) {
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, tellNumber);
    } else if (auto* real = qobject_cast<QDoubleSpinBox*>(m_field)) {
        connect(real, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this](double value) {
                    if (m_setting == 0) {
                        emit realChanged(value);
                    }
                });
    } else if (auto* combo = qobject_cast<QComboBox*>(m_field)) {
        // currentIndexChanged() would also be sent while the list is filled.
        connect(combo, QOverload<int>::of(&QComboBox::activated), this,
                &ControlLink::numberChanged);
    } else if (auto* check = qobject_cast<QCheckBox*>(m_field)) {
        connect(check, &QCheckBox::clicked, this, &ControlLink::switched);
    } else if (auto* view = qobject_cast<QAbstractItemView*>(m_field)) {
        const bool isOneClick = control.flags() & WidgetControl::SingleClick;
        connect(view, isOneClick ? &QAbstractItemView::clicked : &QAbstractItemView::doubleClicked,
                this, &ControlLink::rowChosen);
        view->installEventFilter(this);
    }
}

// Connects by text, because the signatures are only known at run time.
void ControlLink::connectReceiver(const WidgetControl& control)
{
    const Signatures own = signaturesOf(control.kind());
    if (own.changed && !control.changedSlot().isEmpty()) {
        connect(this, own.changed, control.receiver(), control.changedSlot().constData());
    }
    if (own.set && !control.setSignal().isEmpty()) {
        connect(control.receiver(), control.setSignal().constData(), this, own.set);
    }
}

/// Return selects a row, like a click.
bool ControlLink::eventFilter(QObject* watched, QEvent* event)
{
    const auto* view = qobject_cast<QAbstractItemView*>(watched);
    if (view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && view->currentIndex().isValid()) {
            emit rowChosen(view->currentIndex());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void ControlLink::setNumber(int value)
{
    const Counting setting(&m_setting);
    if (auto* slider = qobject_cast<QAbstractSlider*>(m_field)) {
        slider->setValue(value);
    } else if (auto* spin = qobject_cast<QSpinBox*>(m_field)) {
        spin->setValue(value);
    } else if (auto* combo = qobject_cast<QComboBox*>(m_field)) {
        combo->setCurrentIndex(value);
    }
}

void ControlLink::setReal(double value)
{
    const Counting setting(&m_setting);
    if (auto* real = qobject_cast<QDoubleSpinBox*>(m_field)) {
        real->setValue(value);
    }
}

void ControlLink::setOn(bool isOn)
{
    const Counting setting(&m_setting);
    if (auto* check = qobject_cast<QCheckBox*>(m_field)) {
        check->setChecked(isOn);
    }
}

void ControlLink::setText(const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(m_field)) {
        label->setText(text);
    }
}

}  // namespace App
