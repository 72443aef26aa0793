#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class AnimationCode;

/// The frame data of an animation: how it works as an attack, in ticks.
///
/// An attack frame is one with an attack box. Frames that are never shown do not count: those of 0
/// ticks, and those after an endless one. Sums are capped at the largest `int`. A plain value that
/// holds no node.
struct ZORV_EXPORT FrameFacts
{
    static constexpr int Endless = -1;

    /// The input for one frame.
    struct Frame
    {
        int ticks = 0;  ///< negative: forever
        bool isAttack = false;
        int reach = 0;  ///< the farthest of its attack boxes, as in `FrameFacts::reach`
    };

    FrameFacts() = default;
    explicit FrameFacts(const QVector<Frame>& frames);

    /// Reads the frames of an animation as they are now, with all their boxes; no frames for null.
    explicit FrameFacts(const AnimationCode* animation);

    bool operator==(const FrameFacts& other) const;

    bool isAttack = false;  ///< an attack frame is shown; if not, the next four are 0
    int start = 0;          ///< before the first attack frame
    int active = 0;         ///< sum of all attack frames
    int pause = 0;          ///< sum of the gaps between attack frames
    int recovery = 0;       ///< after the last attack frame
    int total = 0;          ///< one pass

    /// How many pixels the attack boxes extend in front of the axis at most; 0 if none does.
    int reach = 0;
};

}  // namespace Zorv
