#pragma once

#include "media/colortypes.h"

namespace Zorv {

/// The colours of a grid, with an undo history of up to eleven changes.
///
/// The current colours keep their address in memory; states are copied in and out. The first change
/// after construction or `reset()` creates no state, because it is the first palette being loaded.
class PaletteHistory
{
public:
    /// All colours are opaque black.
    PaletteHistory();

    using Colors = RGBA[256];
    Colors& colors() { return m_colors; }
    const Colors& colors() const { return m_colors; }

    /// Call before each change; discards what could be redone.
    void beginChange();

    bool canUndo() const { return m_step > 0; }
    bool canRedo() const { return m_step + 1 < m_steps; }

    /// These do nothing if there is no such state.
    void undo();
    void redo();

    /// Clears the history; the colours stay as its only state.
    void flatten();

    /// Makes all colours transparent black and clears the history.
    void reset();

private:
    void goTo(int step);

    static constexpr int Tables = 12;

    Colors m_colors;
    Colors m_tables[Tables];  // entry m_step is stale: m_colors has that state
    int m_step = 0;
    int m_steps = 0;
};

}  // namespace Zorv
