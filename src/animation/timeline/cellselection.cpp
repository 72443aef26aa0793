#include "animation/timeline/cellselection_p.h"

#include <algorithm>
#include <numeric>

namespace Zorv {

bool CellSelection::contains(int cell) const
{
    return std::binary_search(m_cells.begin(), m_cells.end(), cell);
}

bool CellSelection::isBlock() const
{
    return !m_cells.isEmpty() && m_cells.last() - m_cells.first() == m_cells.size() - 1;
}

bool CellSelection::set(QVector<int> cells)
{
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    cells.erase(cells.begin(), std::lower_bound(cells.begin(), cells.end(), 0));
    if (cells == m_cells) {
        return false;
    }
    m_cells = std::move(cells);
    m_anchor = m_cells.value(0);
    m_current = m_cells.isEmpty() ? -1 : m_cells.last();
    return true;
}

void CellSelection::fit(int count)
{
    m_cells.erase(std::lower_bound(m_cells.begin(), m_cells.end(), count), m_cells.end());
    m_anchor = std::clamp(m_anchor, 0, std::max(count - 1, 0));
    m_current = std::min(m_current, count - 1);
}

bool CellSelection::pick(int cell, Qt::KeyboardModifiers modifiers)
{
    QVector<int> cells;
    int anchor = cell;
    if (modifiers & Qt::ShiftModifier && !m_cells.isEmpty()) {
        anchor = m_anchor;
        cells.resize(std::abs(cell - anchor) + 1);
        std::iota(cells.begin(), cells.end(), std::min(cell, anchor));
    } else if (modifiers & Qt::ControlModifier) {
        cells = m_cells;
        const auto place = std::lower_bound(cells.begin(), cells.end(), cell);
        if (contains(cell)) {
            cells.erase(place);
        } else {
            cells.insert(place, cell);
        }
    } else {
        cells = {cell};
    }
    const bool isOther = cells != m_cells;
    m_cells = cells;
    m_anchor = anchor;
    m_current = cell;
    return isOther;
}

}  // namespace Zorv
