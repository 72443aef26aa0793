#include "editors/palette/palettehistory_p.h"

#include <algorithm>
#include <iterator>

namespace Zorv {

namespace {

void copy(const PaletteHistory::Colors& from, PaletteHistory::Colors& to)
{
    std::copy(std::begin(from), std::end(from), std::begin(to));
}

}  // namespace

PaletteHistory::PaletteHistory()
{
    std::fill(std::begin(m_colors), std::end(m_colors), RGBA{0, 0, 0, 255});
}

void PaletteHistory::beginChange()
{
    if (m_steps == 0) {
        m_steps = 1;
        return;
    }
    copy(m_colors, m_tables[m_step]);
    if (m_step + 1 < Tables) {
        ++m_step;
    } else {
        for (int i = 1; i < Tables; ++i) {
            copy(m_tables[i], m_tables[i - 1]);
        }
    }
    m_steps = m_step + 1;
}

void PaletteHistory::undo()
{
    if (canUndo()) {
        goTo(m_step - 1);
    }
}

void PaletteHistory::redo()
{
    if (canRedo()) {
        goTo(m_step + 1);
    }
}

void PaletteHistory::goTo(int step)
{
    copy(m_colors, m_tables[m_step]);
    copy(m_tables[step], m_colors);
    m_step = step;
}

void PaletteHistory::flatten()
{
    m_step = 0;
    m_steps = 1;
}

void PaletteHistory::reset()
{
    m_step = 0;
    m_steps = 0;
    std::fill(std::begin(m_colors), std::end(m_colors), RGBA{});
}

}  // namespace Zorv
