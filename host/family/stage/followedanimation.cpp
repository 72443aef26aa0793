#include "family/stage/followedanimation.h"

#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"

namespace Family {

FollowedAnimation::FollowedAnimation(QObject* parent) : QObject(parent) {}

FollowedAnimation::~FollowedAnimation() = default;

void FollowedAnimation::setAnimation(AnimationNode* animation)
{
    Zorv::CodeDocument* const document = animation ? animation->document() : nullptr;
    if (document != m_document) {
        leave();
        m_document = document;
    }
    if (animation == m_known && animation) {
        return;
    }
    m_known = animation;
    m_identifier = animation ? animation->identifier() : QString();
    m_head = animation ? QTextCursor(animation->block()) : QTextCursor();
    m_ticksKnown = false;
    if (document) {
        connect(document, &Zorv::CodeDocument::codeChanged, this, &FollowedAnimation::follow,
                Qt::UniqueConnection);
        connect(document, &Zorv::CodeDocument::closing, this, &FollowedAnimation::close,
                Qt::UniqueConnection);
    }
    emit changed();
}

FamilyDocument* FollowedAnimation::document() const
{
    return static_cast<FamilyDocument*>(m_document.data());
}

AnimationNode* FollowedAnimation::animation() const
{
    Zorv::CodeNode* node = m_document ? m_document->nodeInBlock(m_head.block()) : nullptr;
    return node && node == m_known && node->type() == Zorv::CodeNode::Animation
               ? static_cast<AnimationNode*>(node)
               : nullptr;
}

FrameNode* FollowedAnimation::frame(int index) const
{
    const AnimationNode* node = animation();
    return node && index >= 0 && index < node->childCount()
               ? static_cast<FrameNode*>(node->childAt(unsigned(index)))
               : nullptr;
}

int FollowedAnimation::frameCount() const
{
    const AnimationNode* node = animation();
    return node ? node->childCount() : 0;
}

const FrameTicks& FollowedAnimation::ticks() const
{
    if (!m_ticksKnown) {
        m_ticks = FrameTicks(animation());
        m_ticksKnown = true;
    }
    return m_ticks;
}

void FollowedAnimation::close()
{
    setAnimation(nullptr);
}

void FollowedAnimation::leave()
{
    if (m_document) {
        m_document->disconnect(this);
    }
    m_document = nullptr;
    m_head = {};
    m_known = nullptr;
}

void FollowedAnimation::follow()
{
    find();
    m_ticksKnown = false;
    emit changed();
}

// A head that is typed in keeps its node and takes another identifier; one that is moved, or broken
// and mended, has a new node with the old one.
void FollowedAnimation::find()
{
    Zorv::CodeNode* node = m_document->nodeInBlock(m_head.block());
    auto* here = node && node->type() == Zorv::CodeNode::Animation
                     ? static_cast<AnimationNode*>(node)
                     : nullptr;
    if (!here || (here != m_known && here->identifier() != m_identifier)) {
        const FamilyAnimations* list = document()->animations();
        here = list->animation(list->indexOfIdentifier(m_identifier));
    }
    m_known = here;
    if (here) {
        m_identifier = here->identifier();
        m_head = QTextCursor(here->block());
    }
}

}  // namespace Family
