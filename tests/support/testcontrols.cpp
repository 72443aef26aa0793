#include "support/testcontrols.h"

#include "editors/framework/ownwidgetcontrol.h"
#include "editors/framework/toolbuttoncontrol.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <iterator>

namespace {

/// How a kind of widget is made, the slot of its relay that sets it, and the signal by which
/// the person does.
struct Making
{
    Zorv::WidgetControl::Kind kind;
    QWidget* (*make)();
    const char* setter;
    const char* changed;
};

template <typename Widget>
QWidget* make()
{
    return new Widget;
}

QWidget* makeSpinBox()
{
    auto* box = new QSpinBox;
    box->setRange(INT_MIN, INT_MAX);
    return box;
}

QWidget* makeDoubleSpinBox()
{
    auto* box = new QDoubleSpinBox;
    box->setRange(-FLT_MAX, FLT_MAX);
    return box;
}

const Making makings[] = {
    {Zorv::WidgetControl::Slider, make<QSlider>, SLOT(set(int)), SIGNAL(valueChanged(int))},
    {Zorv::WidgetControl::Label, make<QLabel>, SLOT(set(QString)), nullptr},
    {Zorv::WidgetControl::CheckBox, make<QCheckBox>, SLOT(set(bool)), SIGNAL(toggled(bool))},
    {Zorv::WidgetControl::SpinEdit, makeSpinBox, SLOT(set(int)), SIGNAL(valueChanged(int))},
    {Zorv::WidgetControl::FloatEdit, makeDoubleSpinBox, SLOT(set(double)),
     SIGNAL(valueChanged(double))},
    {Zorv::WidgetControl::ComboBox, make<QComboBox>, SLOT(choose(int)),
     SIGNAL(currentIndexChanged(int))},
    {Zorv::WidgetControl::ListView, make<QListView>, nullptr, SIGNAL(doubleClicked(QModelIndex))},
    {Zorv::WidgetControl::TreeView, make<QTreeView>, nullptr, SIGNAL(doubleClicked(QModelIndex))},
};

/// Passes on what the person does with a widget, and not what the tool sets.
class Relay : public QObject
{
    Q_OBJECT

public:
    explicit Relay(QObject* widget) : QObject(widget) {}

public slots:
    void set(int value) { setQuietly("value", value); }
    void set(double value) { setQuietly("value", value); }
    void set(bool value) { setQuietly("checked", value); }
    void set(const QString& value) { setQuietly("text", value); }
    void choose(int row) { setQuietly("currentIndex", row); }

private:
    void setQuietly(const char* property, const QVariant& value)
    {
        const QSignalBlocker blocker(parent());
        parent()->setProperty(property, value);
    }
};

void setUpView(QAbstractItemView* view, Zorv::WidgetControl::Flags flags)
{
    if (flags & Zorv::WidgetControl::Reorderable) {
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->setDragDropMode(QAbstractItemView::DragDrop);
        view->setDefaultDropAction(Qt::MoveAction);
        view->setDragDropOverwriteMode(false);
    }
}

}  // namespace

TestControls::TestControls()
{
    new QVBoxLayout(this);
}

QWidget* TestControls::add(const QString& name, const Zorv::Control& control)
{
    QWidget* widget = nullptr;
    if (const auto* button = dynamic_cast<const Zorv::ToolButtonControl*>(&control)) {
        auto* toolButton = new QToolButton;
        toolButton->setDefaultAction(button->action());
        widget = toolButton;
    } else if (const auto* own = dynamic_cast<const Zorv::OwnWidgetControl*>(&control)) {
        widget = own->widget();
        if (!own->enableSignal().isEmpty()) {
            connect(own->receiver(), own->enableSignal().constData(), widget,
                    SLOT(setEnabled(bool)));
        }
    } else {
        widget = makeWidget(dynamic_cast<const Zorv::WidgetControl&>(control));
    }
    widget->setObjectName(name);
    layout()->addWidget(widget);
    return widget;
}

QWidget* TestControls::makeWidget(const Zorv::WidgetControl& control)
{
    const auto* making = std::find_if(std::begin(makings), std::end(makings),
                                      [&](const Making& m) { return m.kind == control.kind(); });
    QWidget* widget = making->make();
    if (making->changed && !control.changedSlot().isEmpty()) {
        connect(widget, making->changed, control.receiver(), control.changedSlot().constData());
    }
    if (making->setter && !control.setSignal().isEmpty()) {
        connect(control.receiver(), control.setSignal().constData(), new Relay(widget),
                making->setter);
    }
    if (!control.enableSignal().isEmpty()) {
        connect(control.receiver(), control.enableSignal().constData(), widget,
                SLOT(setEnabled(bool)));
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        setUpView(view, control.flags());
    }
    return widget;
}

#include "testcontrols.moc"
