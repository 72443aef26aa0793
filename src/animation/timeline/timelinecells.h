#pragma once

#include "zorv_export.h"

#include <QVector>

class QMimeData;

namespace Zorv {

/// The cells of a row of a `TimeLineWidget`, and what a person may do to them with mouse and keys.
///
/// Cells are frames, say. They have a place in a list, and stand one behind the other from tick 0
/// on; one of 0 ticks is in the list and not on the strip, and so are all that stand behind an
/// endless one. The strip asks for few cells at each repaint, those in sight, and never walks over
/// the list. It keeps nothing of what it was told: after any change it is enough to update it.
///
/// Each of the operations that change cells is one act of a person, to be undone as a whole. They
/// are called with places inside the list, rising and each once. Main thread only.
class ZORV_EXPORT TimeLineCells
{
public:
    struct Cell
    {
        unsigned int firstTick = 0;
        int length = 0;  ///< ticks; negative without end
    };

    virtual ~TimeLineCells();

    virtual int count() const = 0;

    /// The cell at a place of the list.
    virtual Cell at(int index) const = 0;

    /// The place of the cell that stands at a tick; -1 behind the last one. An endless cell stands
    /// at all ticks from its first one on.
    virtual int indexAt(unsigned int tick) const = 0;

    /// False while cells can only be looked at.
    virtual bool isEditable() const = 0;

    /// Gives the cells at `indexes` the lengths at the same places of `lengths`. Lengths are at
    /// least 1, or -1 for one without end. False if nothing was changed.
    virtual bool setLengths(const QVector<int>& indexes, const QVector<int>& lengths) = 0;

    /// Puts cells, in their order, in front of the one that stands at `target` now; behind all of
    /// them for `count()`. False if nothing was changed.
    virtual bool move(const QVector<int>& indexes, int target) = 0;

    /// True if something that is dragged over the strip can become cells. As it stands here
    /// nothing can.
    virtual bool accepts(const QMimeData* data) const;

    /// Makes cells of it in front of the one at `index`; behind all of them for `count()`. As it
    /// stands here nothing happens.
    virtual void drop(const QMimeData* data, int index);
};

}  // namespace Zorv
