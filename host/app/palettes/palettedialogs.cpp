#include "app/palettes/palettedialogs.h"

#include "app/palettes/familypaletteeditor.h"

#include <zorv/media/tools/colorchanges.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>

namespace App {

using Zorv::PaletteSort;
using Zorv::RGBA;

namespace {

constexpr int HalfTurn = 180;

/// In the order of `Zorv::ColorSpace`.
const char* const spaces[] = {
    QT_TRANSLATE_NOOP("App::RampDialog", "RGB: the numbers in even steps"),
    QT_TRANSLATE_NOOP("App::RampDialog", "HSV: along the circle of hues"),
    QT_TRANSLATE_NOOP("App::RampDialog", "OKLab: as the eye sees it"),
};

/// In the order of `Zorv::PaletteKey`.
const char* const keys[] = {
    QT_TRANSLATE_NOOP("App::SortDialog", "Hue"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Lightness"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Chroma"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Red"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Green"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Blue"),
    QT_TRANSLATE_NOOP("App::SortDialog", "Alpha"),
};

void addButtons(QDialog* dialog, QFormLayout* form)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
}

QCheckBox* addBox(QFormLayout* form, const QString& text, bool isChecked = false)
{
    auto* box = new QCheckBox(text);
    box->setChecked(isChecked);
    form->addRow(box);
    return box;
}

/// Adds a line that says what will be changed.
void addExtent(QFormLayout* form, const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    form->addRow(label);
}

}  // namespace

PaletteDialog::PaletteDialog(const ChosenPalette& chosen, QWidget* parent)
    : QDialog(parent), m_chosen(chosen), m_form(new QFormLayout(this))
{
}

PaletteDialog::~PaletteDialog()
{
    if (FamilyPaletteEditor* editor = m_chosen.editor()) {
        editor->previewColors(nullptr);
    }
}

void PaletteDialog::finish()
{
    addButtons(this, m_form);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    // The grid shows another palette, or this palette has other colours.
    connect(m_chosen.editor(), &Zorv::PaletteEditor::currentPaletteChanged, this, [this] {
        if (!m_chosen.isThere()) {
            QTimer::singleShot(0, this, &QDialog::reject);
        }
    });
    showChange();
}

void PaletteDialog::showChange()
{
    if (!m_chosen.isThere()) {
        return;
    }
    Family::PaletteColors colors = m_chosen.colors();
    change(colors.data());
    m_chosen.editor()->previewColors(colors.data());
}

RampDialog::RampDialog(const ChosenPalette& chosen, QWidget* parent)
    : PaletteDialog(chosen, parent), m_space(new QComboBox)
{
    setWindowTitle(tr("Make a ramp"));
    addExtent(form(), tr("The slots from %1 to %2 become even steps between the two.")
                          .arg(QString::number(chosen.first()), QString::number(chosen.last())));
    for (const char* space : spaces) {
        m_space->addItem(tr(space));
    }
    m_space->setCurrentIndex(int(Zorv::ColorSpace::OKLab));
    form()->addRow(tr("&Mixed in:"), m_space);
    m_isInAll = addBox(form(), tr("In &all palettes of the file, each between its own two"));
    const auto chosenAnew = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_space, chosenAnew, this, &RampDialog::showChange);
    finish();
}

Zorv::ColorSpace RampDialog::space() const
{
    return Zorv::ColorSpace(m_space->currentIndex());
}

bool RampDialog::isInAll() const
{
    return m_isInAll->isChecked();
}

void RampDialog::change(RGBA* colors) const
{
    const int first = chosen().first();
    const int last = chosen().last();
    const QVector<RGBA> ramp =
        Zorv::rampBetween(colors[first], colors[last], last - first + 1, space());
    std::copy(ramp.begin(), ramp.end(), colors + first);
}

HueDialog::HueDialog(const ChosenPalette& chosen, QWidget* parent)
    : PaletteDialog(chosen, parent), m_slider(new QSlider(Qt::Horizontal)), m_degrees(new QSpinBox)
{
    setWindowTitle(tr("Shift hue"));
    const int count = chosen.selectedCount();
    addExtent(form(), count > 0 ? tr("%n selected slot(s)", nullptr, count)
                                : tr("All slots: none is selected."));
    m_slider->setRange(-HalfTurn, HalfTurn);
    m_slider->setAccessibleName(tr("Degrees"));
    m_degrees->setRange(-HalfTurn, HalfTurn);
    m_degrees->setSuffix(QChar(0xb0));
    m_degrees->setWrapping(true);
    form()->addRow(m_slider);
    form()->addRow(tr("&Degrees:"), m_degrees);
    connect(m_slider, &QSlider::valueChanged, m_degrees, &QSpinBox::setValue);
    connect(m_degrees, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int value) {
        m_slider->setValue(value);
        showChange();
    });
    finish();
}

int HueDialog::degrees() const
{
    return m_degrees->value();
}

void HueDialog::change(RGBA* colors) const
{
    const bool* selected = chosen().slotsOrAll(1);
    for (int i = 0; i < 256; ++i) {
        colors[i] = selected[i] ? Zorv::shiftHue(colors[i], degrees()) : colors[i];
    }
}

SortDialog::SortDialog(const ChosenPalette& chosen, QWidget* parent)
    : QDialog(parent), m_chosen(chosen), m_key(new QComboBox)
{
    setWindowTitle(tr("Sort colours"));
    for (const char* key : keys) {
        m_key->addItem(tr(key));
    }
    auto* form = new QFormLayout(this);
    addExtent(form, tr("Pixels go with their colours: pictures look as before."));
    form->addRow(tr("&By:"), m_key);
    m_isDescending = addBox(form, tr("&The other way round"));
    const bool isPart = chosen.selectedCount() > 1;
    m_isSelection = addBox(form, tr("Only the &selected slots"), isPart);
    m_isSelection->setEnabled(isPart);
    m_movesFirst = addBox(form, tr("Slot &0, too"));
    m_movesTransparent = addBox(form, tr("Trans&parent colours, too"));
    m_isInAll = addBox(form, tr("The same in &all palettes of the file"), true);
    addButtons(this, form);
}

Zorv::PaletteOrder SortDialog::order() const
{
    Zorv::PaletteSorting sorting;
    sorting.setFlag(PaletteSort::Descending, m_isDescending->isChecked());
    sorting.setFlag(PaletteSort::MovesFirst, m_movesFirst->isChecked());
    sorting.setFlag(PaletteSort::MovesTransparent, m_movesTransparent->isChecked());
    return Zorv::sortedOrder(m_chosen.colors().data(), Zorv::PaletteKey(m_key->currentIndex()),
                             sorting,
                             m_isSelection->isChecked() ? m_chosen.slotsOrAll(2) : nullptr);
}

bool SortDialog::isInAll() const
{
    return m_isInAll->isChecked();
}

}  // namespace App
