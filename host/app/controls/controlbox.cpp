#include "app/controls/controlbox.h"

#include "app/actions/actiontext.h"
#include "app/controls/controllink.h"

#include <zorv/editors/framework/ownwidgetcontrol.h>
#include <zorv/editors/framework/trwidgetcontrol.h>
#include <zorv/text/translator.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QSlider>
#include <QSpinBox>
#include <QTreeView>

namespace App {

using Zorv::WidgetControl;

namespace {

// Default size of a control, in characters and rows.
constexpr int UsualSliderWidth = 16;
constexpr int UsualRows = 4;
constexpr int FewestCharacters = 5;  // of a choice

// Extra width of a field for frame and arrows, in characters.
constexpr int FieldExtra = 4;

int characters(const QWidget* widget, int count)
{
    return widget->fontMetrics().averageCharWidth() * count;
}

void setUpView(QAbstractItemView* view, const WidgetControl& control)
{
    const int rows = control.size() > 0 ? control.size() : UsualRows;
    // The view can be smaller than its preferred size, but not vanish.
    view->setMinimumHeight(view->fontMetrics().lineSpacing() * qMin(rows, UsualRows));
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (control.flags() & WidgetControl::Reorderable) {
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->setDragDropMode(QAbstractItemView::InternalMove);
        view->setDefaultDropAction(Qt::MoveAction);
        view->setDragDropOverwriteMode(false);
    }
}

QListView* makeList(const WidgetControl& control)
{
    auto* list = new QListView;
    // Makes long lists fast: a list may have one row per sprite of a game.
    list->setUniformItemSizes(true);
    setUpView(list, control);
    return list;
}

QTreeView* makeTree(const WidgetControl& control)
{
    auto* tree = new QTreeView;
    tree->setUniformRowHeights(true);
    tree->setHeaderHidden(true);
    setUpView(tree, control);
    return tree;
}

QSlider* makeSlider(const WidgetControl& control)
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setMinimumWidth(
        characters(slider, control.size() > 0 ? control.size() : UsualSliderWidth));
    return slider;
}

QLabel* makeText(const WidgetControl& control)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(characters(label, control.size()));
    return label;
}

/// Shows "1.5" instead of "1.500000".
class RealField : public QDoubleSpinBox
{
public:
    QString textFromValue(double value) const override
    {
        QString text = QDoubleSpinBox::textFromValue(value);
        if (text.contains(locale().decimalPoint())) {
            while (text.endsWith(locale().zeroDigit())) {
                text.chop(1);
            }
            if (text.endsWith(locale().decimalPoint())) {
                text.chop(1);
            }
        }
        return text;
    }
};

template <typename Field>
Field* makeField(const WidgetControl& control)
{
    auto* field = new Field;
    if (control.size() > 0) {
        field->setMinimumWidth(characters(field, control.size() + FieldExtra));
    }
    return field;
}

/// As narrow as possible: the opened list shows the entries in full.
QComboBox* makeChoice(const WidgetControl& control)
{
    auto* box = makeField<QComboBox>(control);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(FewestCharacters);
    return box;
}

QWidget* makeWidget(const WidgetControl& control)
{
    switch (control.kind()) {
    case WidgetControl::Slider:
        return makeSlider(control);
    case WidgetControl::Label:
        return makeText(control);
    case WidgetControl::CheckBox:
        return new QCheckBox;
    case WidgetControl::SpinEdit:
        return makeField<QSpinBox>(control);
    case WidgetControl::FloatEdit:
        return makeField<RealField>(control);
    case WidgetControl::ComboBox:
        return makeChoice(control);
    case WidgetControl::TreeView:
        return makeTree(control);
    case WidgetControl::ListView:
        break;
    }
    return makeList(control);
}

}  // namespace

ControlBox::ControlBox(const QString& name, const WidgetControl& control, QWidget* parent)
    : QWidget(parent), m_field(makeWidget(control))
{
    new QHBoxLayout(this);
    makeLabel(control);
    hold(name);
    new ControlLink(m_field, control);
    retranslate();
}

ControlBox::ControlBox(const QString& name, const Zorv::OwnWidgetControl& control, QWidget* parent)
    : QWidget(parent), m_field(control.widget())
{
    new QHBoxLayout(this);
    hold(m_field->objectName().isEmpty() ? name : m_field->objectName());
    connect(m_field, &QObject::destroyed, this, &QObject::deleteLater);
}

void ControlBox::hold(const QString& name)
{
    layout()->setContentsMargins(0, 0, 0, 0);
    static_cast<QHBoxLayout*>(layout())->addWidget(m_field, 1);
    m_field->setObjectName(name);
}

void ControlBox::makeLabel(const WidgetControl& control)
{
    const auto* translated = dynamic_cast<const Zorv::trWidgetControl*>(&control);
    if (!translated || !translated->translator()) {
        return;
    }
    m_translator = translated->translator();
    m_textId = translated->textId();
    // A check box shows its own text.
    if (control.kind() != WidgetControl::CheckBox) {
        m_label = new QLabel;
        m_label->setBuddy(m_field);
        layout()->addWidget(m_label);
    }
}

bool ControlBox::takesRoom() const
{
    return m_field->sizePolicy().expandingDirections() & Qt::Vertical;
}

void ControlBox::retranslate()
{
    if (!m_translator) {
        return;
    }
    const QString text = m_translator->trText(m_textId);
    const QString tip = m_translator->trToolTip(m_textId);
    if (auto* check = qobject_cast<QCheckBox*>(m_field)) {
        check->setText(text);
    }
    if (m_label) {
        m_label->setText(text);
        m_label->setToolTip(tip);
    }
    m_field->setToolTip(tip);
    m_field->setStatusTip(tip);
    m_field->setWhatsThis(m_translator->trWhatIsThis(m_textId));
    m_field->setAccessibleName(ActionText::plain(text));
}

}  // namespace App
