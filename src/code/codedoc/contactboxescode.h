#pragma once

#include "code/codedoc/contactboxcode.h"

namespace Zorv {

class FrameCode;

/// The contact boxes of one kind of a frame, in the order of the text.
///
/// The list and its boxes belong to the grammar and live as long as the frame. As
/// it stands here it is empty and takes no box, which does for a host without a
/// stage.
class ZORV_EXPORT ContactBoxesCode
{
public:
    virtual ~ContactBoxesCode();

    virtual int count() const;

    /// The box at a place, null outside of the list.
    virtual ContactBoxCode* at(int index) const;

    /// Writes a new box into the text, behind the others; gives it, or null if
    /// the text cannot be changed.
    virtual ContactBoxCode* add(const QRect& rect);

    /// Takes a box out of the text; nothing outside of the list.
    virtual void remove(int index);

    /// The kind of the boxes.
    virtual ContactBoxCode::BoxType type() const;

    /// The frame that the boxes belong to.
    virtual FrameCode* frame() const;

    /// The document that holds the text, or null.
    virtual CodeDocument* document() const;
};

}  // namespace Zorv
