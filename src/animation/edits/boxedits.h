#pragma once

#include "animation/edits/editcount.h"
#include "animation/edits/frameplace.h"
#include "code/codedoc/contactboxcode.h"

#include <QRect>

#include <functional>

namespace Zorv {

/// The contact boxes of a frame as values, each kind in the order of the text.
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

/// A box of a frame: its kind, `Attack` or `Collision`, and its place in that list.
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

/// The places of those of `boxes` that are boxes of this frame.
ZORV_EXPORT QVector<BoxPlace> placesOf(const FrameCode* frame, const QList<ContactBoxCode*>& boxes);

/// Has a frame have the boxes of another and no others. Boxes that are equal keep their lines, and
/// as many others as can be: only their numbers change. No step of undo of its own.
ZORV_EXPORT void copyBoxes(const FrameCode* source, FrameCode* target);

/// Something that does what `copyBoxes()` does.
using BoxCopier = std::function<void(FrameCode* source, FrameCode* target)>;

/// @name Edits
///
/// One step of undo each. Boxes and frames are found again after each edit of a line. What is not
/// there, any more or at all, counts for nothing.
/// @{

/// Copies the boxes of a frame to others in place of those that they have.
ZORV_EXPORT void copyBoxes(Animations* animations, const FramePlace& source,
                           const QVector<FramePlace>& targets, const BoxCopier& copier = {});

/// The same with all `instancesOf()` the frame.
ZORV_EXPORT void copyBoxesToInstances(Animations* animations, const FramePlace& source,
                                      const BoxCopier& copier = {});

/// How many boxes these frames have, to ask before they are replaced.
ZORV_EXPORT int countBoxes(const Animations* animations, const QVector<FramePlace>& places);

/// Adds boxes to frames, behind those that they have.
ZORV_EXPORT EditCount addBoxes(Animations* animations, const QVector<FramePlace>& places,
                               const BoxRects& boxes);

/// Removes boxes of a frame, all boxes of a frame, or those of all frames of an animation.
ZORV_EXPORT EditCount removeBoxes(Animations* animations, const FramePlace& place,
                                  const QVector<BoxPlace>& boxes);
ZORV_EXPORT EditCount removeAllBoxes(Animations* animations, const FramePlace& place);
ZORV_EXPORT EditCount removeAllBoxes(Animations* animations, int animation);

/// Makes boxes ones of the other kind, behind those that the frame has of it.
ZORV_EXPORT EditCount switchBoxTypes(Animations* animations, const FramePlace& place,
                                     const QVector<BoxPlace>& boxes);

/// Mirrors boxes left to right about the axis, as the flip of a frame mirrors its picture.
ZORV_EXPORT EditCount mirrorBoxes(Animations* animations, const FramePlace& place,
                                  const QVector<BoxPlace>& boxes);
/// @}

}  // namespace Zorv

Q_DECLARE_TYPEINFO(Zorv::BoxPlace, Q_PRIMITIVE_TYPE);
