#pragma once

#include <QVector>

namespace Zorv {

class AnimationCode;

/// Finds frames again after any edit of the text, undo and redo included.
///
/// A frame is recognised by the hash of its line. A frame with an unchanged line is found wherever
/// it is now. If no frame was added or removed, a frame with a changed line is assumed to have kept
/// its index.
class FrameMatch
{
public:
    FrameMatch() = default;

    /// The frames as they are now; none for null.
    explicit FrameMatch(const AnimationCode* animation);

    /// Takes values that stand in for the lines.
    explicit FrameMatch(const QVector<uint>& lines) : m_lines(lines) {}

    /// The index of each frame in a later state; -1 for a frame that cannot be found.
    QVector<int> placesIn(const FrameMatch& later) const;

private:
    QVector<uint> m_lines;
};

}  // namespace Zorv
