#pragma once

#include "media/colortypes.h"

namespace Zorv {

/// The colours of a grid, and what they were before up to eleven changes.
///
/// The colours stay at one place in memory, states are copied in and out. The first change after
/// construction and `reset()` makes no state: it is the first palette that arrives.
class PaletteHistory
{
public:
    /// All colours are opaque black.
    PaletteHistory();

    using Colors = RGBA[256];
    Colors& colors() { return m_colors; }
    const Colors& colors() const { return m_colors; }

    /// To be called before a change; what could be redone is gone.
    void beginChange();

    bool canUndo() const { return m_step > 0; }
    bool canRedo() const { return m_step + 1 < m_steps; }

    /// Does nothing where there is no such state.
    void undo();
    void redo();

    /// The colours stay, and are the only state.
    void flatten();

    /// All colours become transparent black; there is no state.
    void reset();

private:
    void goTo(int step);

    static constexpr int Tables = 12;

    Colors m_colors;
    Colors m_tables[Tables];  // that of m_step is out of date: it is m_colors
    int m_step = 0;
    int m_steps = 0;
};

}  // namespace Zorv
