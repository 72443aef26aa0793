#pragma once

#include "animation/edits/editcount.h"
#include "zorv_export.h"

#include <QRect>
#include <QString>
#include <QVector>

namespace Zorv {

class Animations;

/// What is done alike to the offset or to all contact boxes of many frames.
///
/// A box of at least a pixel each way keeps one: the corner that is moved gives way, in a scaled
/// box the bottom right one. Everything is computed in 64 bits, and what does not fit into 32
/// becomes the nearest number that does.
struct Alignment
{
    enum Mode {
        OffsetAxis = 0,         ///< the frame's offset += (x, y)
        OffsetBoxes = 1,        ///< both corners += (x, y)
        ResizeTopLeft = 2,      ///< the top left corner -= (x, y)
        ResizeBottomRight = 3,  ///< the bottom right corner += (x, y)
        ScaleBoxes = 4  ///< to x and y percent, counted from the axis; divisions drop the fraction
    };
    static constexpr int ModeCount = 5;

    Mode mode = OffsetAxis;
    int x = 0;
    int y = 0;
};

/// "Offset axis" and so on, in the language of the program.
ZORV_EXPORT QString alignmentText(Alignment::Mode mode);

/// An offset by the first mode, a box by one of the others; each as it is by the other ones.
ZORV_EXPORT QPoint aligned(const QPoint& offset, const Alignment& alignment);
ZORV_EXPORT QRect aligned(const QRect& box, const Alignment& alignment);

/// Aligns all frames of these animations, as one step of undo with the text of the mode. A number
/// that is no animation counts for nothing.
ZORV_EXPORT EditCount align(Animations* animations, const QVector<int>& indexes,
                            const Alignment& alignment);

}  // namespace Zorv
