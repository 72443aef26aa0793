#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class Animations;
class FrameCode;

/// Identifies a frame by the index of its animation and its index there, both from 0.
///
/// All edits of frames and boxes take places. Any edit can replace a node, but a place means the
/// same frame until frames are inserted, removed or moved.
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

/// The frame at a place, valid until the next edit; null if there is none.
ZORV_EXPORT FrameCode* frameAt(const Animations* animations, const FramePlace& place);

/// The places of all frames of an animation, in order.
ZORV_EXPORT QVector<FramePlace> framesOf(const Animations* animations, int animation);

/// The places of all other frames, in all animations, that use the same sprite (group and number),
/// in the order of the text. None for a frame without a sprite.
ZORV_EXPORT QVector<FramePlace> instancesOf(const Animations* animations, const FramePlace& place);

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::FramePlace, Q_PRIMITIVE_TYPE);
