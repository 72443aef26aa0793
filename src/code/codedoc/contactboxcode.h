#pragma once

#include "zorv_export.h"

#include <QRect>

namespace Zorv {

class CodeDocument;
class ContactBoxesCode;

/// One contact box of a frame, as the grammar keeps it in the text.
///
/// An edit of a box reaches its frame, which reads its boxes anew: a pointer to
/// a box is good until the next edit. Owned by the grammar.
class ZORV_EXPORT ContactBoxCode
{
public:
    /// The kind of a box. The editor uses the first two.
    enum BoxType {
        Attack = 1,     ///< what hits
        Collision = 2,  ///< what can be hit
        Type3 = 3,      ///< from here on: the grammar's own
        Type4 = 4,
        Type5 = 5,
        Type6 = 6,
        Type7 = 7,
        Type8 = 8
    };

    virtual ~ContactBoxCode();

    /// The box in pixels of the game, relative to the frame's axis; right and
    /// bottom are inclusive.
    virtual QRect rect() const = 0;

    /// Writes another rectangle into the text.
    virtual void setRect(const QRect& rect) = 0;

    /// The list that the box is in.
    virtual ContactBoxesCode* boxes() const = 0;

    /// The block number of the box's text.
    virtual int line() const = 0;
};

}  // namespace Zorv
