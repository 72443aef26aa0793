#include "app/palettes/chosenpalette.h"

#include "app/palettes/familypaletteeditor.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"

#include <zorv/editors/palette/palettewidget.h>

#include <algorithm>
#include <numeric>

namespace App {

using Family::FamilyPalette;

SelectedSlots SelectedSlots::of(const FamilyPaletteEditor& editor)
{
    SelectedSlots found;
    const Zorv::PaletteWidget* grid = editor.view();
    for (int i = 0; grid && i < 256; ++i) {
        if (grid->selection[i]) {
            found.first = found.count == 0 ? i : found.first;
            found.last = i;
            ++found.count;
        }
    }
    return found;
}

ChosenPalette::ChosenPalette(FamilyPaletteEditor* editor)
    : m_editor(editor), m_sprites(editor->sprites()), m_palette(editor->currentPalette())
{
    m_all.fill(true);
    if (m_palette) {
        const auto* palette = static_cast<const FamilyPalette*>(m_palette);
        m_row = palette->row;
        m_id = palette->id();
        m_colors = palette->state.colors;
    }
    if (editor->view()) {
        std::copy_n(editor->view()->selection, m_selection.size(), m_selection.begin());
    }
}

// A reloaded file can have a new palette at the same address, so identifier and colours are
// compared too.
bool ChosenPalette::isThere() const
{
    if (!m_editor || !m_palette || !m_sprites || m_editor->sprites() != m_sprites ||
        m_editor->currentPalette() != m_palette) {
        return false;
    }
    const FamilyPalette* now = m_sprites->palettes()->palette(m_row);
    return now == m_palette && now->id() == m_id && now->state.colors == m_colors;
}

bool ChosenPalette::comeBack() const
{
    if (m_editor && m_palette && m_sprites && m_editor->sprites() == m_sprites &&
        m_editor->currentPalette() != m_palette) {
        FamilyPalette* now = m_sprites->palettes()->palette(m_row);
        if (now == m_palette) {
            m_editor->setCurrentPalette(now);
        }
    }
    return isThere();
}

const bool* ChosenPalette::slotsOrAll(int least) const
{
    return selectedCount() < least ? m_all.data() : m_selection.data();
}

int ChosenPalette::selectedCount() const
{
    return int(std::count(m_selection.begin(), m_selection.end(), true));
}

quint8 ChosenPalette::first() const
{
    const auto found = std::find(m_selection.begin(), m_selection.end(), true);
    return found == m_selection.end() ? 0 : quint8(found - m_selection.begin());
}

quint8 ChosenPalette::last() const
{
    const auto found = std::find(m_selection.rbegin(), m_selection.rend(), true);
    return found == m_selection.rend() ? 0 : quint8(m_selection.rend() - found - 1);
}

QVector<int> ChosenPalette::rows(bool all) const
{
    if (!all || !m_sprites) {
        return {m_row};
    }
    QVector<int> rows(m_sprites->palettes()->count());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

Family::SpriteCollection* ChosenPalette::sprites() const
{
    return m_sprites;
}

FamilyPaletteEditor* ChosenPalette::editor() const
{
    return m_editor;
}

}  // namespace App
