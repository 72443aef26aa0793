#include "app/assets/importform.h"

#include "app/assets/axisplaces.h"
#include "family/assets/spritecollection.h"
#include "operations/animationedits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace App {

using Operations::AxisBase;
using Operations::ImportRequest;
using Operations::Numbering;
using Operations::WhenTaken;

namespace {

constexpr int MaxPart = 65535;
constexpr int MaxTicks = 32767;
constexpr int UsualTicks = 6;
constexpr int MostColors = 256;

/// The first entries of the palette list; the palettes of the file follow.
enum PaletteChoice { OwnPalette, NewPalette, FirstOfFile };

enum NumbersChoice { ByNames, InOrder };

/// Precedes the places of an image.
constexpr int FromFile = 0;

QSpinBox* numberBox(int least, int most, int value)
{
    auto* box = new QSpinBox;
    box->setRange(least, most);
    box->setValue(value);
    return box;
}

QWidget* sideBySide(QWidget* first, QWidget* second)
{
    auto* both = new QWidget;
    auto* layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->addWidget(first, 1);
    layout->addWidget(second, 1);
    return both;
}

}  // namespace

ImportForm::ImportForm(const Family::SpriteCollection& sprites, int group,
                       const Family::FamilyAnimations* animations, const QString& place,
                       QWidget* parent)
    : QWidget(parent), m_numbers(new QComboBox),
      m_pattern(new QLineEdit(Numbering::defaultPattern())), m_group(numberBox(0, MaxPart, group)),
      m_first(numberBox(0, MaxPart, 0)), m_taken(new QComboBox), m_axis(new QComboBox),
      m_x(makeOffsetBox()), m_y(makeOffsetBox()), m_palette(new QComboBox),
      m_colors(numberBox(2, MostColors, MostColors)),
      m_crops(new QCheckBox(tr("&Cut off what does not show"))),
      m_animation(new QGroupBox(tr("&Make an animation of them"))), m_identifier(new QLineEdit),
      m_ticks(numberBox(1, MaxTicks, UsualTicks))
{
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins({});
    addNumbers(layout);
    addAxis(layout);
    addPalette(layout, sprites);
    if (animations) {
        m_takenIds = Operations::animationIdentifiers(animations);
        m_identifier->setText(Operations::nextAnimationNumber(animations));
    }
    addAnimation(layout, place);
    m_animation->setVisible(animations);
    update();
}

void ImportForm::addNumbers(QFormLayout* layout)
{
    m_numbers->addItems({tr("As their names tell"), tr("One after the other")});
    m_pattern->setToolTip(tr("{group} and {number} are digits at the end of the name, * is any "
                             "text. Without {group} the group below counts, without {number} the "
                             "next free one."));
    m_group->setToolTip(tr("Of images whose names tell none"));
    m_taken->addItems({tr("Next free number"), tr("Replace the sprite there")});
    layout->addRow(tr("&Numbers:"), m_numbers);
    layout->addRow(tr("Pattern of na&mes:"), m_pattern);
    layout->addRow(tr("&Group:"), m_group);
    layout->addRow(tr("Fir&st number:"), m_first);
    layout->addRow(tr("Numbers that are &taken:"), m_taken);
    const auto picked = QOverload<int>::of(&QComboBox::currentIndexChanged);
    const auto set = QOverload<int>::of(&QSpinBox::valueChanged);
    for (const QComboBox* box : {m_numbers, m_taken, m_axis, m_palette}) {
        connect(box, picked, this, &ImportForm::update);
    }
    for (const QSpinBox* box : {m_group, m_first, m_x, m_y, m_colors, m_ticks}) {
        connect(box, set, this, &ImportForm::update);
    }
    for (const QLineEdit* line : {m_pattern, m_identifier}) {
        connect(line, &QLineEdit::textChanged, this, &ImportForm::update);
    }
    connect(m_crops, &QCheckBox::toggled, this, &ImportForm::update);
    connect(m_animation, &QGroupBox::toggled, this, &ImportForm::update);
}

void ImportForm::addAxis(QFormLayout* layout)
{
    m_axis->addItem(tr("As the file tells, else bottom middle"));
    m_axis->addItems(axisPlaceNames());
    m_axis->setMaxVisibleItems(m_axis->count());
    m_x->setToolTip(tr("Moves the axis to the right"));
    m_y->setToolTip(tr("Moves the axis down"));
    m_x->setAccessibleName(m_x->toolTip());
    m_y->setAccessibleName(m_y->toolTip());
    layout->addRow(tr("A&xis:"), m_axis);
    layout->addRow(tr("Mo&ved by:"), sideBySide(m_x, m_y));
}

void ImportForm::addPalette(QFormLayout* layout, const Family::SpriteCollection& sprites)
{
    m_palette->addItems({tr("Each image its own"), tr("A new one for all")});
    for (const auto& palette : sprites.palettes()->items()) {
        const QString id = palette->id().text();
        m_palette->addItem(tr("Palette %1 for all").arg(id), id);
    }
    m_colors->setSuffix(tr(" colours"));
    m_colors->setAccessibleName(tr("Colours of the new palette"));
    layout->addRow(tr("&Palette:"), sideBySide(m_palette, m_colors));
    layout->addRow(QString(), m_crops);
}

void ImportForm::addAnimation(QFormLayout* layout, const QString& place)
{
    m_animation->setCheckable(true);
    m_animation->setChecked(false);
    m_ticks->setSuffix(tr(" ticks"));
    m_ticks->setToolTip(tr("A tick is 1/60 of a second"));
    auto* form = new QFormLayout(m_animation);
    form->addRow(tr("&Identifier:"), m_identifier);
    form->addRow(tr("&Each frame:"), m_ticks);
    if (!place.isEmpty()) {
        auto* label = new QLabel(tr("It comes to the end of %1.").arg(place));
        label->setTextFormat(Qt::PlainText);
        form->addRow(label);
    }
    layout->addRow(m_animation);
}

void ImportForm::update()
{
    const bool isByNames = m_numbers->currentIndex() == ByNames;
    m_pattern->setEnabled(isByNames);
    m_taken->setEnabled(isByNames);
    m_colors->setVisible(m_palette->currentIndex() == NewPalette);
    emit changed();
}

ImportRequest ImportForm::request() const
{
    ImportRequest request;
    const bool isByNames = m_numbers->currentIndex() == ByNames;
    request.numbering.pattern = isByNames ? m_pattern->text() : QString();
    request.numbering.group = m_group->value();
    request.numbering.first = m_first->value();
    request.numbering.whenTaken =
        m_taken->currentIndex() == 0 ? WhenTaken::NextFree : WhenTaken::Replace;
    request.hasAxis = m_axis->currentIndex() != FromFile;
    request.axisBase = request.hasAxis ? AxisBase(m_axis->currentIndex() - 1) : AxisBase::Bottom;
    request.axis = {m_x->value(), m_y->value()};
    request.palette = m_palette->currentData().toString();
    request.colors = m_palette->currentIndex() == NewPalette ? m_colors->value() : 0;
    request.crops = m_crops->isChecked();
    request.leavesOut = true;
    return request;
}

bool ImportForm::makesAnimation() const
{
    return !m_animation->isHidden() && m_animation->isChecked();
}

QString ImportForm::animation() const
{
    return m_identifier->text().trimmed();
}

int ImportForm::ticks() const
{
    return m_ticks->value();
}

void ImportForm::setTimed(bool isTimed)
{
    m_ticks->setSpecialValueText(isTimed ? tr("As the file tells") : QString());
    if (isTimed == (m_ticks->minimum() == 0)) {
        return;
    }
    m_ticks->setMinimum(isTimed ? 0 : 1);
    m_ticks->setValue(isTimed ? 0 : UsualTicks);
}

QString ImportForm::fault() const
{
    if (m_numbers->currentIndex() == ByNames) {
        const QString fault = Operations::patternFault(m_pattern->text());
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return makesAnimation() ? Operations::animationNameFault(m_takenIds, animation()) : QString();
}

}  // namespace App
