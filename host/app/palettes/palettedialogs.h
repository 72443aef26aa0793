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

/// A question about a change of the current palette. While it is open the grid and the canvas show
/// what would come of it. The palette itself stays: the change is for who asks.
class PaletteDialog : public QDialog
{
    Q_OBJECT

public:
    ~PaletteDialog() override;

protected:
    /// `chosen` outlives it.
    PaletteDialog(const ChosenPalette& chosen, QWidget* parent);

    /// What the palette would be.
    virtual void change(Zorv::RGBA* colors) const = 0;

    /// Shows that. Once the palette is another one the question has no sense, and ends.
    void showChange();

    /// Puts the buttons below what the form has.
    void finish();

    const ChosenPalette& chosen() const { return m_chosen; }
    QFormLayout* form() const { return m_form; }

private:
    const ChosenPalette& m_chosen;
    QFormLayout* m_form;
};

/// Asks in which space colours are mixed between the first and the last selected slot.
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

/// Asks how far hues are turned: those of the selected slots, or of all without any.
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

/// Asks how colours are sorted. Pictures look the same afterwards, so there is nothing to be shown.
class SortDialog : public QDialog
{
    Q_OBJECT

public:
    SortDialog(const ChosenPalette& chosen, QWidget* parent);

    /// Of the palette as it was chosen.
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
