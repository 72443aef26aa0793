#pragma once

#include "zorv_export.h"

#include <QRect>

namespace Zorv {

class CodeDocument;
class ContactBoxesCode;

/// One contact box of a frame, as the parser read it from the text.
///
/// After an edit of a box, its frame reads all boxes again. So a pointer to a
/// box is only valid until the next edit. Owned by the parser.
class ZORV_EXPORT ContactBoxCode
{
public:
    /// The kind of a box. The editor uses only the first two.
    enum BoxType {
        Attack = 1,     ///< hitbox: what hits
        Collision = 2,  ///< hurtbox: what can be hit
        Type3 = 3,      ///< defined by the parser, like all that follow
        Type4 = 4,
        Type5 = 5,
        Type6 = 6,
        Type7 = 7,
        Type8 = 8
    };

    virtual ~ContactBoxCode();

    /// The box in pixels of the game, relative to the frame's axis. Right and
    /// bottom are inclusive.
    virtual QRect rect() const = 0;

    /// Writes a new rectangle into the text.
    virtual void setRect(const QRect& rect) = 0;

    /// The list that contains the box.
    virtual ContactBoxesCode* boxes() const = 0;

    /// The block number of the box's line.
    virtual int line() const = 0;
};

}  // namespace Zorv
