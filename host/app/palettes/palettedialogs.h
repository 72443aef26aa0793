#pragma once

#include "app/palettes/chosenpalette.h"

#include <zorv/media/tools/colorspaces.h>
#include <zorv/media/tools/paletteorder.h>

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSlider;
class QSpinBox;

namespace App {

/// A dialog for a change of the current palette. While it is open, grid and canvas preview the
/// result. The palette itself does not change: the caller applies the change.
class PaletteDialog : public QDialog
{
    Q_OBJECT

public:
    ~PaletteDialog() override;

protected:
    /// `chosen` outlives it.
    PaletteDialog(const ChosenPalette& chosen, QWidget* parent);

    /// Applies the change to `colors`, a copy of the palette.
    virtual void change(Zorv::RGBA* colors) const = 0;

    /// Previews the change. If the palette was replaced meanwhile, the dialog closes, because its
    /// question makes no sense any more.
    void showChange();

    /// Adds the buttons below the form.
    void finish();

    const ChosenPalette& chosen() const { return m_chosen; }
    QFormLayout* form() const { return m_form; }

private:
    const ChosenPalette& m_chosen;
    QFormLayout* m_form;
};

/// Asks for the colour space in which to mix colours between the first and the last selected slot.
class RampDialog : public PaletteDialog
{
    Q_OBJECT

public:
    RampDialog(const ChosenPalette& chosen, QWidget* parent);

    Zorv::ColorSpace space() const;
    bool isInAll() const;

protected:
    void change(Zorv::RGBA* colors) const override;

private:
    QComboBox* m_space;
    QCheckBox* m_isInAll;
};

/// Asks how far to rotate hues: those of the selected slots, or of all slots if none is selected.
class HueDialog : public PaletteDialog
{
    Q_OBJECT

public:
    HueDialog(const ChosenPalette& chosen, QWidget* parent);

    /// -180 to 180.
    int degrees() const;

protected:
    void change(Zorv::RGBA* colors) const override;

private:
    QSlider* m_slider;
    QSpinBox* m_degrees;
};

/// Asks how to sort colours. There is no preview: pictures look the same afterwards.
class SortDialog : public QDialog
{
    Q_OBJECT

public:
    SortDialog(const ChosenPalette& chosen, QWidget* parent);

    /// For the palette as it was when the dialog opened.
    Zorv::PaletteOrder order() const;
    bool isInAll() const;

private:
    const ChosenPalette& m_chosen;
    QComboBox* m_key;
    QCheckBox* m_isDescending;
    QCheckBox* m_isSelection;
    QCheckBox* m_movesFirst;
    QCheckBox* m_movesTransparent;
    QCheckBox* m_isInAll;
};

}  // namespace App
