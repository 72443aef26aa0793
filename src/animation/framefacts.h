#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class AnimationCode;

/// How an animation works as an attack, in ticks: what players call its frame data.
///
/// An attack frame is one with an attack box. Frames that are never shown count for nothing: those
/// of 0 ticks, and those behind an endless one. Sums end at the largest `int`. A value that knows
/// no node.
struct ZORV_EXPORT FrameFacts
{
    static constexpr int Endless = -1;

    /// What is needed of a frame.
    struct Frame
    {
        int ticks = 0;  ///< negative for ever
        bool isAttack = false;
        int reach = 0;  ///< of its attack boxes
    };

    FrameFacts() = default;
    explicit FrameFacts(const QVector<Frame>& frames);

    /// The frames of an animation as they are now; null for none. Reads the boxes of all frames.
    explicit FrameFacts(const AnimationCode* animation);

    bool operator==(const FrameFacts& other) const;

    bool isAttack = false;  ///< an attack frame is shown; without one the next four are 0
    int start = 0;          ///< in front of the first attack frame
    int active = 0;         ///< of all attack frames
    int pause = 0;          ///< between attack frames
    int recovery = 0;       ///< behind the last attack frame
    int total = 0;          ///< of one pass

    /// How many pixels in front of the axis the attack boxes reach at most; 0 if none does.
    int reach = 0;
};

}  // namespace Zorv
