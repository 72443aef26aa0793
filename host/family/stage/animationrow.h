#pragma once

#include <zorv/animation/timeline/timeline.h>

namespace Zorv {
class FollowedAnimation;
}

namespace Family {

/// The row of an animation on the time line: its name, and its frames as markers. It costs the same
/// for each tick that shows, however long the animation is.
class AnimationRow final : public Zorv::TimeLine
{
public:
    /// Not owned, and has to outlive the row.
    explicit AnimationRow(const Zorv::FollowedAnimation* animation) : m_animation(animation) {}

    /// Empty without an animation.
    QString name() const override;
    bool markerAtTick(unsigned int tick, Marker& marker) const override;

private:
    const Zorv::FollowedAnimation* m_animation;
};

}  // namespace Family
