#pragma once

#include <QVector>
#include <Qt>

namespace Zorv {

/// The cells that a person has selected, in rising order.
class CellSelection
{
public:
    const QVector<int>& cells() const { return m_cells; }
    bool contains(int cell) const;

    /// True if the cells lie one behind the other.
    bool isBlock() const;

    /// In any order, also more than once; places below 0 are left out. True if it is another
    /// selection now.
    bool set(QVector<int> cells);

    /// Drops what lies behind the last of `count` cells.
    void fit(int count);

    /// What a click selects, or a key that goes to another cell: the cell alone; with Ctrl it is
    /// added or taken away, with Shift all from the last cell that was picked without it.
    bool pick(int cell, Qt::KeyboardModifiers modifiers);

    /// The cell that was picked last, -1 for none.
    int current() const { return m_current; }

private:
    QVector<int> m_cells;
    int m_anchor = 0;
    int m_current = -1;
};

}  // namespace Zorv
