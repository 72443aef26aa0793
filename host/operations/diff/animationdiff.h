#pragma once

#include "family/nodes/framedata.h"

#include <QRect>
#include <QString>
#include <QVector>

namespace Family {
class AnimationNode;
}  // namespace Family

namespace Operations {

/// What happened to something between two texts.
enum class DiffKind { Same, Changed, Added, Removed };

/// The values of a contact box.
struct BoxRecord
{
    bool isAttack = false;
    QRect rect;

    bool operator==(const BoxRecord& other) const;
};

/// The values of a frame: its attack boxes, then its body boxes, each in text order.
struct FrameRecord
{
    Family::FrameData data;
    QVector<BoxRecord> boxes;

    bool operator==(const FrameRecord& other) const;
    bool operator!=(const FrameRecord& other) const { return !(*this == other); }
};

QVector<FrameRecord> frameRecords(const Family::AnimationNode& animation);

/// A box that differs. Places are indexes among the boxes of its kind in the frame, from 0; -1 if
/// it does not exist on that side. A box with a different rectangle was moved.
struct BoxDiff
{
    DiffKind kind = DiffKind::Same;
    bool isAttack = false;
    int oldPlace = -1;
    int newPlace = -1;
    QRect oldRect;
    QRect newRect;
};

/// A part of a frame line that differs, as code.
struct OptionDiff
{
    QString name;  ///< "sprite", or the name of an option
    QString oldText;
    QString newText;
};

/// A frame of one animation, or a pair of matching frames. -1 on the side where it does not exist.
struct FrameDiff
{
    DiffKind kind = DiffKind::Same;
    int oldFrame = -1;
    int newFrame = -1;
    QVector<OptionDiff> options;
    QVector<BoxDiff> boxes;
    bool isRedrawn =
        false;  ///< the sprite number is the same but the picture differs; see `markRedrawn()`
};

/// Matches the frames of two animations and finds what changed. The order is ascending for the
/// frames of both.
///
/// Equal frames are matched first. Between them, the most similar frames are matched. Within a
/// frame, equal boxes of a kind are matched first, then the nearest ones.
QVector<FrameDiff> diffFrames(const QVector<FrameRecord>& oldFrames,
                              const QVector<FrameRecord>& newFrames);

}  // namespace Operations
