#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class Animations;
class FrameCode;

/// Where a frame stands: its animation in the list and its place in that, both from 0.
///
/// All edits of frames and boxes take places. A node may be another one after any edit, a place
/// means the same frame until frames are inserted, removed or moved.
struct FramePlace
{
    int animation = -1;
    int frame = -1;
};

inline bool operator==(const FramePlace& a, const FramePlace& b)
{
    return a.animation == b.animation && a.frame == b.frame;
}

inline bool operator!=(const FramePlace& a, const FramePlace& b)
{
    return !(a == b);
}

/// The frame at a place, good until the next edit; null if there is none.
ZORV_EXPORT FrameCode* frameAt(const Animations* animations, const FramePlace& place);

/// The places of all frames of an animation in their order.
ZORV_EXPORT QVector<FramePlace> framesOf(const Animations* animations, int animation);

/// The places of all other frames of all animations that name the same sprite, by group and
/// number, in the order of the text. None for a frame without a sprite.
ZORV_EXPORT QVector<FramePlace> instancesOf(const Animations* animations, const FramePlace& place);

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::FramePlace, Q_PRIMITIVE_TYPE);
