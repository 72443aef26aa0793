#include "family/stage/animationrow.h"

#include <zorv/animation/followedanimation.h>
#include <zorv/code/codedoc/animationcode.h>

namespace Family {

QString AnimationRow::name() const
{
    const Zorv::AnimationCode* node = m_animation->animation();
    return node ? node->displayName() : QString();
}

bool AnimationRow::markerAtTick(unsigned int tick, Marker& marker) const
{
    return m_animation->ticks().markerAt(tick, marker);
}

}  // namespace Family
