#pragma once

#include "code/codedoc/contactboxcode.h"

namespace Zorv {

class FrameCode;

/// The contact boxes of one kind of a frame, in the order of the text.
///
/// The list and its boxes belong to the grammar and live as long as the frame.
class ZORV_EXPORT ContactBoxesCode
{
public:
    virtual ~ContactBoxesCode();

    virtual int count() const = 0;

    /// The box at a place, null outside of the list.
    virtual ContactBoxCode* at(int index) const = 0;

    /// Writes a new box into the text, behind the others; gives it, or null if
    /// the text cannot be changed.
    virtual ContactBoxCode* add(const QRect& rect) = 0;

    /// Takes a box out of the text; nothing outside of the list.
    virtual void remove(int index) = 0;

    /// The kind of the boxes.
    virtual ContactBoxCode::BoxType type() const = 0;

    /// The frame that the boxes belong to.
    virtual FrameCode* frame() const = 0;

    /// The document that holds the text, or null.
    virtual CodeDocument* document() const = 0;
};

}  // namespace Zorv
