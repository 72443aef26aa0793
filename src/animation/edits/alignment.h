#pragma once

#include "animation/edits/editcount.h"
#include "zorv_export.h"

#include <QRect>
#include <QString>
#include <QVector>

namespace Zorv {

class Animations;

/// One operation on the offset or on all contact boxes of many frames.
///
/// A box that is at least one pixel wide or high stays so: the moved corner gives way; in a scaled
/// box the bottom right one. Computes in 64 bits and clamps results to 32 bits.
struct Alignment
{
    enum Mode {
        OffsetAxis = 0,         ///< the frame's offset += (x, y)
        OffsetBoxes = 1,        ///< both corners += (x, y)
        ResizeTopLeft = 2,      ///< the top left corner -= (x, y)
        ResizeBottomRight = 3,  ///< the bottom right corner += (x, y)
        ScaleBoxes = 4          ///< to x and y percent, relative to the axis; divisions truncate
    };
    static constexpr int ModeCount = 5;

    Mode mode = OffsetAxis;
    int x = 0;
    int y = 0;
};

/// The name of the mode in the program's language, for example "Offset axis".
ZORV_EXPORT QString alignmentText(Alignment::Mode mode);

/// Only `OffsetAxis` changes an offset; only the other modes change a box.
ZORV_EXPORT QPoint aligned(const QPoint& offset, const Alignment& alignment);
ZORV_EXPORT QRect aligned(const QRect& box, const Alignment& alignment);

/// Aligns all frames of these animations as one undo step, named after the mode. Ignores invalid
/// indexes.
ZORV_EXPORT EditCount align(Animations* animations, const QVector<int>& indexes,
                            const Alignment& alignment);

}  // namespace Zorv
