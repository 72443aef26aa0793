#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"
#include "code/codedoc/contactboxcode.h"

#include <QRect>

#include <functional>

namespace Zorv {

/// The contact boxes of a frame as values, each type in the order of the text.
struct BoxRects
{
    QVector<QRect> attack;
    QVector<QRect> collision;

    int count() const { return attack.size() + collision.size(); }
};

inline bool operator==(const BoxRects& a, const BoxRects& b)
{
    return a.attack == b.attack && a.collision == b.collision;
}

/// Identifies a box of a frame: its type, `Attack` or `Collision`, and its index in that list.
struct BoxPlace
{
    ContactBoxCode::BoxType type = ContactBoxCode::Attack;
    int index = -1;
};

inline bool operator==(const BoxPlace& a, const BoxPlace& b)
{
    return a.type == b.type && a.index == b.index;
}

/// Empty for null.
ZORV_EXPORT BoxRects boxesOf(const FrameCode* frame);

/// The places of all boxes of a frame.
ZORV_EXPORT QVector<BoxPlace> placesOf(const FrameCode* frame);

/// The places of those `boxes` that belong to this frame.
ZORV_EXPORT QVector<BoxPlace> placesOf(const FrameCode* frame, const QList<ContactBoxCode*>& boxes);

/// Gives the target exactly the boxes of the source. Keeps the lines of equal boxes, and reuses as
/// many other lines as possible by changing their numbers. Makes no undo step of its own.
ZORV_EXPORT void copyBoxes(const FrameCode* source, FrameCode* target);

/// A function with the same effect as `copyBoxes()`.
using BoxCopier = std::function<void(FrameCode* source, FrameCode* target)>;

/// @name Edits
///
/// One undo step each. Boxes and frames are found again after each edit of a line. Boxes and frames
/// that do not exist (any more) are ignored.
/// @{

/// Replaces the boxes of the target frames by those of the source frame.
ZORV_EXPORT void copyBoxes(Animations* animations, const FramePlace& source,
                           const QVector<FramePlace>& targets, const BoxCopier& copier = {});

/// The same for all `instancesOf()` the frame.
ZORV_EXPORT void copyBoxesToInstances(Animations* animations, const FramePlace& source,
                                      const BoxCopier& copier = {});

/// The number of boxes in these frames, for a question before they are replaced.
ZORV_EXPORT int countBoxes(const Animations* animations, const QVector<FramePlace>& places);

/// Appends boxes to the boxes of each frame.
ZORV_EXPORT EditCount addBoxes(Animations* animations, const QVector<FramePlace>& places,
                               const BoxRects& boxes);

/// Removes some boxes of a frame, all boxes of a frame, or all boxes of an animation.
ZORV_EXPORT EditCount removeBoxes(Animations* animations, const FramePlace& place,
                                  const QVector<BoxPlace>& boxes);
ZORV_EXPORT EditCount removeAllBoxes(Animations* animations, const FramePlace& place);
ZORV_EXPORT EditCount removeAllBoxes(Animations* animations, int animation);

/// Converts boxes to the other type, and appends them to that list.
ZORV_EXPORT EditCount switchBoxTypes(Animations* animations, const FramePlace& place,
                                     const QVector<BoxPlace>& boxes);

/// Mirrors boxes horizontally about the axis, as the flip of a frame mirrors its picture.
ZORV_EXPORT EditCount mirrorBoxes(Animations* animations, const FramePlace& place,
                                  const QVector<BoxPlace>& boxes);
/// @}

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::BoxPlace, Q_PRIMITIVE_TYPE);
