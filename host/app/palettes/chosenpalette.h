#pragma once

#include "family/assets/familypalette.h"

#include <QPointer>

namespace Family {
class SpriteCollection;
}

namespace App {

class FamilyPaletteEditor;

/// The slots that are selected in the grid. For what is asked at any time: it looks at no palette,
/// which may be one of a file that is just read anew.
struct SelectedSlots
{
    int count = 0;
    int first = -1;
    int last = -1;

    static SelectedSlots of(const FamilyPaletteEditor& editor);
};

/// The current palette as it was when a dialog was opened on it, and the slots that were selected.
/// Files are read again behind dialogs, projects are closed: it is looked at again before a change.
class ChosenPalette
{
public:
    explicit ChosenPalette(FamilyPaletteEditor* editor);

    /// True while the same palette is the current one, with the same colours.
    bool isThere() const;

    /// Makes it the current one again where another palette came into the grid meanwhile. True if
    /// `isThere()` then.
    bool comeBack() const;

    /// The slots that are selected; all of them if those are fewer than `least`. Pointer to 256.
    const bool* slotsOrAll(int least) const;
    int selectedCount() const;

    /// The first and the last selected slot; 0 without any.
    quint8 first() const;
    quint8 last() const;

    const Family::PaletteColors& colors() const { return m_colors; }
    int row() const { return m_row; }

    /// The row alone, or those of all palettes of the file.
    QVector<int> rows(bool all) const;

    /// To be asked for while `isThere()`.
    Family::SpriteCollection* sprites() const;
    FamilyPaletteEditor* editor() const;

private:
    QPointer<FamilyPaletteEditor> m_editor;
    QPointer<Family::SpriteCollection> m_sprites;
    const Zorv::Palette* m_palette;  // compared only
    int m_row = -1;
    Family::AssetId m_id;
    Family::PaletteColors m_colors{};
    std::array<bool, 256> m_selection{};
    std::array<bool, 256> m_all{};
};

}  // namespace App
