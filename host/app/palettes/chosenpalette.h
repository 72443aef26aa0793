#pragma once

#include "family/assets/familypalette.h"

#include <QPointer>

namespace Family {
class SpriteCollection;
}

namespace App {

class FamilyPaletteEditor;

/// The selected slots of the grid. Safe to call at any time: it does not touch the palette, which
/// can belong to a file being reloaded.
struct SelectedSlots
{
    int count = 0;
    int first = -1;
    int last = -1;

    static SelectedSlots of(const FamilyPaletteEditor& editor);
};

/// A snapshot of the current palette and the selected slots, taken when a dialog opens. While the
/// dialog is open, files can be reloaded and projects closed, so the palette is checked again
/// before a change.
class ChosenPalette
{
public:
    explicit ChosenPalette(FamilyPaletteEditor* editor);

    /// True while the same palette is current and has the same colours.
    bool isThere() const;

    /// Makes the palette current again if the grid shows another one. True if `isThere()`
    /// afterwards.
    bool comeBack() const;

    /// The selected slots; all of them if fewer than `least` are selected. Points to 256 flags.
    const bool* slotsOrAll(int least) const;
    int selectedCount() const;

    /// The first and last selected slot; 0 if none is selected.
    quint8 first() const;
    quint8 last() const;

    const Family::PaletteColors& colors() const { return m_colors; }
    int row() const { return m_row; }

    /// The row alone, or the rows of all palettes of the file.
    QVector<int> rows(bool all) const;

    /// Call only while `isThere()`.
    Family::SpriteCollection* sprites() const;
    FamilyPaletteEditor* editor() const;

private:
    QPointer<FamilyPaletteEditor> m_editor;
    QPointer<Family::SpriteCollection> m_sprites;
    const Zorv::Palette* m_palette;  // only compared, never dereferenced
    int m_row = -1;
    Family::AssetId m_id;
    Family::PaletteColors m_colors{};
    std::array<bool, 256> m_selection{};
    std::array<bool, 256> m_all{};
};

}  // namespace App
