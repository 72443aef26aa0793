#pragma once

#include "animation/edits/boxedits.h"
#include "animation/edits/followedframe_p.h"

namespace Zorv {

/// The boxes of one type in a frame, which is found again after each edit.
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

    /// Makes the list equal to these. Skips equal boxes at the start and the end to save edits.
    void setRects(const QVector<QRect>& rects) const;

private:
    ContactBoxesCode* get() const;

    const FollowedFrame& m_frame;
    ContactBoxCode::BoxType m_type;
};

/// The two box types that editors use.
constexpr ContactBoxCode::BoxType EditedBoxTypes[] = {ContactBoxCode::Attack,
                                                      ContactBoxCode::Collision};

}  // namespace Zorv
