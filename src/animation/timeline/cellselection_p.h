#pragma once

#include <QVector>
#include <Qt>

namespace Zorv {

/// The selected cells, in ascending order.
class CellSelection
{
public:
    const QVector<int>& cells() const { return m_cells; }
    bool contains(int cell) const;

    /// True if the cells are adjacent.
    bool isBlock() const;

    /// Takes cells in any order; ignores duplicates and negative ones. True if the selection
    /// changed.
    bool set(QVector<int> cells);

    /// Drops indexes at or above `count`.
    void fit(int count);

    /// Selects as a click or a cursor key does: the cell alone; with Ctrl toggles it; with Shift
    /// selects everything from the last cell that was picked without Shift.
    bool pick(int cell, Qt::KeyboardModifiers modifiers);

    /// The cell that was picked last, -1 for none.
    int current() const { return m_current; }

private:
    QVector<int> m_cells;
    int m_anchor = 0;
    int m_current = -1;
};

}  // namespace Zorv
