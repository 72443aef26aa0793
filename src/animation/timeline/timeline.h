#pragma once

#include "zorv_export.h"

#include <QColor>
#include <QString>

namespace Zorv {

class TimeLineCells;

/// One row of a `TimeLineWidget`: says what is at a tick. A tick is 1/60 second.
class ZORV_EXPORT TimeLine
{
public:
    /// Something that starts at a tick, for example a frame.
    struct Marker
    {
        QColor color;
        int length = 0;  ///< ticks; negative: endless
    };

    virtual ~TimeLine();

    /// The label at the left of the row.
    virtual QString name() const = 0;

    /// If a marker starts at that tick, fills it in and returns true. Called for every visible tick
    /// at every repaint.
    virtual bool markerAtTick(unsigned int tick, Marker& marker) const = 0;

    /// The cells of the row if the user may edit them; the same object as long as the row is shown.
    /// By default null: the row is read-only.
    virtual TimeLineCells* cells();
};

}  // namespace Zorv
