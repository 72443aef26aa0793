#pragma once

#include "code/codedoc/contactboxcode.h"

namespace Zorv {

class FrameCode;

/// All contact boxes of one kind in a frame, in text order.
///
/// The parser owns the list and its boxes, which live as long as the frame. By
/// default the list is empty and adds nothing, which is enough for a host
/// without a stage.
class ZORV_EXPORT ContactBoxesCode
{
public:
    virtual ~ContactBoxesCode();

    virtual int count() const;

    /// The box at an index; null if out of range.
    virtual ContactBoxCode* at(int index) const;

    /// Writes a new box into the text, behind the others, and returns it. Null
    /// if the text cannot be changed.
    virtual ContactBoxCode* add(const QRect& rect);

    /// Removes a box from the text. Does nothing if out of range.
    virtual void remove(int index);

    /// The kind of the boxes.
    virtual ContactBoxCode::BoxType type() const;

    /// The frame that the boxes belong to.
    virtual FrameCode* frame() const;

    /// The document with the text, or null.
    virtual CodeDocument* document() const;
};

}  // namespace Zorv
