#pragma once

#include "family/nodes/framedata.h"

#include <QRect>
#include <QString>
#include <QVector>

namespace Family {
class AnimationNode;
}  // namespace Family

namespace Operations {

/// What has become of something between two texts.
enum class DiffKind { Same, Changed, Added, Removed };

/// A contact box by itself.
struct BoxRecord
{
    bool isAttack = false;
    QRect rect;

    bool operator==(const BoxRecord& other) const;
};

/// A frame by itself, with its attack boxes and then its body boxes, each in the order of the text.
struct FrameRecord
{
    Family::FrameData data;
    QVector<BoxRecord> boxes;

    bool operator==(const FrameRecord& other) const;
    bool operator!=(const FrameRecord& other) const { return !(*this == other); }
};

QVector<FrameRecord> frameRecords(const Family::AnimationNode& animation);

/// A box that differs. Places count the boxes of its kind in the frame, from 0; -1 where it is not
/// there. A box whose rectangle differs has been moved.
struct BoxDiff
{
    DiffKind kind = DiffKind::Same;
    bool isAttack = false;
    int oldPlace = -1;
    int newPlace = -1;
    QRect oldRect;
    QRect newRect;
};

/// What a frame line says about one thing, as code.
struct OptionDiff
{
    QString name;  ///< "sprite", or that of an option
    QString oldText;
    QString newText;
};

/// A frame of either animation, or one of each that belong together. -1 where it is not there.
struct FrameDiff
{
    DiffKind kind = DiffKind::Same;
    int oldFrame = -1;
    int newFrame = -1;
    QVector<OptionDiff> options;
    QVector<BoxDiff> boxes;
    bool isRedrawn =
        false;  ///< the sprite of the same number is another picture; see `markRedrawn()`
};

/// Which frames of two animations belong together, in an order in which frames of both ascend, and
/// what has become of them.
///
/// Frames that say the same are found first; of those between them the ones that are most alike
/// belong together. In a frame boxes of a kind that are equal belong together, then those nearest.
QVector<FrameDiff> diffFrames(const QVector<FrameRecord>& oldFrames,
                              const QVector<FrameRecord>& newFrames);

}  // namespace Operations
