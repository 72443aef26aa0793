#pragma once

#include "animation/edits/boxedits.h"
#include "animation/edits/followedframe_p.h"

namespace Zorv {

/// One kind of box of a frame that is found again after each edit.
class FollowedBoxes
{
public:
    FollowedBoxes(const FollowedFrame& frame, ContactBoxCode::BoxType type)
        : m_frame(frame), m_type(type)
    {
    }

    QVector<QRect> rects() const;

    EditCount setRect(int index, const QRect& rect) const;
    EditCount remove(int index) const;
    EditCount add(const QRect& rect) const;

    /// Has the list hold these, with as few edits as equal beginnings and ends allow.
    void setRects(const QVector<QRect>& rects) const;

private:
    ContactBoxesCode* get() const;

    const FollowedFrame& m_frame;
    ContactBoxCode::BoxType m_type;
};

/// The two kinds of boxes that editors use.
constexpr ContactBoxCode::BoxType EditedBoxTypes[] = {ContactBoxCode::Attack,
                                                      ContactBoxCode::Collision};

}  // namespace Zorv
