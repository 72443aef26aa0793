#pragma once

#include "zorv_export.h"

#include <QColor>
#include <QString>

namespace Zorv {

class TimeLineCells;

/// One row of a `TimeLineWidget`: tells what stands at a tick. A tick is 1/60 second.
class ZORV_EXPORT TimeLine
{
public:
    /// Something that starts at a tick, a frame say.
    struct Marker
    {
        QColor color;
        int length = 0;  ///< ticks; negative without end
    };

    virtual ~TimeLine();

    /// What stands at the left of the row.
    virtual QString name() const = 0;

    /// True if a marker starts at that tick, which is then filled in. Asked for every tick that
    /// shows, at every repaint.
    virtual bool markerAtTick(unsigned int tick, Marker& marker) const = 0;

    /// The cells of the row, if a person may work on them: the same object as long as the row is
    /// shown. Null as it stands here: the row is only looked at.
    virtual TimeLineCells* cells();
};

}  // namespace Zorv
