#include "family/stage/animationrow.h"

#include "family/nodes/animationnode.h"
#include "family/stage/followedanimation.h"

namespace Family {

QString AnimationRow::name() const
{
    const AnimationNode* node = m_animation->animation();
    return node ? node->displayName() : QString();
}

bool AnimationRow::markerAtTick(unsigned int tick, Marker& marker) const
{
    return m_animation->ticks().markerAt(tick, marker);
}

}  // namespace Family
