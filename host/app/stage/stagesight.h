#pragma once

#include <QRect>

namespace Family {
class FrameNode;
class SpriteCollection;
}  // namespace Family

namespace App {

class StageRenderer;

/// Brings a frame into sight: its sprite and all of its boxes.
class StageSight
{
public:
    /// The stage outlives this.
    explicit StageSight(StageRenderer* stage) : m_stage(stage) {}

    /// The area of a frame at a zoom, from the origin, in pixels of the stage; empty for one that
    /// shows nothing. `sprites` may be null.
    static QRect areaOf(const Family::FrameNode& frame, const Family::SpriteCollection* sprites,
                        float zoom);

    /// True if all of the frame is seen, or there is nothing to be seen of it.
    bool isWhole(const Family::FrameNode& frame, const Family::SpriteCollection* sprites) const;

    /// Moves the view no farther than it takes. A frame that is too large is made smaller, and what
    /// is too large at the smallest zoom stands in the middle.
    void bring(const Family::FrameNode& frame, const Family::SpriteCollection* sprites);

private:
    QRect sight() const;

    StageRenderer* m_stage;
};

}  // namespace App
