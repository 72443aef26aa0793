#pragma once

#include "zorv_export.h"

#include <QVector>

class QMimeData;

namespace Zorv {

/// The cells of a row of a `TimeLineWidget`, for example frames, and the edits of them by mouse and
/// keyboard.
///
/// Cells have an index and follow one another from tick 0. A cell of 0 ticks has an index but is
/// not visible on the strip, and neither is any cell after an endless one. At each repaint the
/// strip asks for the few visible cells only; it never loops over all cells. It caches no answer:
/// after any change it is enough to update the widget.
///
/// Each function that changes cells is one user action, to be undone as a whole. Indexes passed to
/// these functions are valid, ascending and without duplicates. Main thread only.
class ZORV_EXPORT TimeLineCells
{
public:
    struct Cell
    {
        unsigned int firstTick = 0;
        int length = 0;  ///< ticks; negative: endless
    };

    virtual ~TimeLineCells();

    virtual int count() const = 0;

    /// The cell with this index.
    virtual Cell at(int index) const = 0;

    /// The index of the cell at a tick; -1 after the last one. An endless cell covers all ticks
    /// from its first one on.
    virtual int indexAt(unsigned int tick) const = 0;

    /// False while the cells are read-only.
    virtual bool isEditable() const = 0;

    /// Sets the length of each cell in `indexes` to the matching entry of `lengths`: at least 1, or
    /// -1 for endless. False if nothing was changed.
    virtual bool setLengths(const QVector<int>& indexes, const QVector<int>& lengths) = 0;

    /// Moves cells, in their order, before the one that is at `target` now; to the end for
    /// `count()`. False if nothing was changed.
    virtual bool move(const QVector<int>& indexes, int target) = 0;

    /// True if dragged data can be dropped on the strip as cells. By default false.
    virtual bool accepts(const QMimeData* data) const;

    /// Inserts cells made from the data before the one at `index`; at the end for `count()`. By
    /// default does nothing.
    virtual void drop(const QMimeData* data, int index);
};

}  // namespace Zorv
