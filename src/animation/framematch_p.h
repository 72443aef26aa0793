#pragma once

#include <QVector>

namespace Zorv {

class AnimationCode;

/// Finds frames again after an edit of the text, whoever made it, undo and redo too.
///
/// A frame is told by its line. Those whose line is as it was are found wherever they are now;
/// where lines were changed in place, and none came or went among them, the place counts.
class FrameMatch
{
public:
    FrameMatch() = default;

    /// The frames as they are now; none for null.
    explicit FrameMatch(const AnimationCode* animation);

    /// By what stands in for their lines.
    explicit FrameMatch(const QVector<uint>& lines) : m_lines(lines) {}

    /// Where each of the frames stands in a later state; -1 for one that cannot be found.
    QVector<int> placesIn(const FrameMatch& later) const;

private:
    QVector<uint> m_lines;
};

}  // namespace Zorv
