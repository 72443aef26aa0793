#include "animation/followedanimation.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"

namespace Zorv {

namespace {

QString identifierOf(const AnimationCode* animation)
{
    return animation->property(QStringLiteral("Identifier")).toString();
}

AnimationCode* animationOf(CodeNode* node)
{
    return node && node->type() == CodeNode::Animation ? static_cast<AnimationCode*>(node)
                                                       : nullptr;
}

}  // namespace

FollowedAnimation::FollowedAnimation(QObject* parent) : QObject(parent) {}

FollowedAnimation::~FollowedAnimation() = default;

void FollowedAnimation::setAnimation(AnimationCode* animation)
{
    CodeDocument* const document = animation ? animation->document() : nullptr;
    if (document != m_document) {
        leave();
        m_document = document;
    }
    if (animation == m_known && animation) {
        return;
    }
    m_known = animation;
    m_identifier = animation ? identifierOf(animation) : QString();
    m_head = animation ? QTextCursor(animation->block()) : QTextCursor();
    m_ticksKnown = false;
    if (document) {
        connect(document, &CodeDocument::codeChanged, this, &FollowedAnimation::follow,
                Qt::UniqueConnection);
        connect(document, &CodeDocument::closing, this, &FollowedAnimation::close,
                Qt::UniqueConnection);
    }
    emit changed();
}

CodeDocument* FollowedAnimation::document() const
{
    return m_document;
}

AnimationCode* FollowedAnimation::animation() const
{
    AnimationCode* const node =
        m_document ? animationOf(m_document->nodeInBlock(m_head.block())) : nullptr;
    return node == m_known ? node : nullptr;
}

FrameCode* FollowedAnimation::frame(int index) const
{
    const AnimationCode* node = animation();
    return node ? node->frame(index) : nullptr;
}

int FollowedAnimation::frameCount() const
{
    const AnimationCode* node = animation();
    return node ? node->frameCount() : 0;
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

// If the head line is edited in place, the node stays and its identifier changes. If it is moved,
// or broken and repaired, a new node has the old identifier. So a node counts as the same one if
// either its address or its identifier is the same.
void FollowedAnimation::find()
{
    AnimationCode* here = animationOf(m_document->nodeInBlock(m_head.block()));
    if (!here || (here != m_known && identifierOf(here) != m_identifier)) {
        const Animations* all = list();
        here = all ? all->at(unsigned(all->find(0, m_identifier))) : nullptr;
    }
    m_known = here;
    if (here) {
        m_identifier = identifierOf(here);
        m_head = QTextCursor(here->block());
    }
}

Animations* FollowedAnimation::list() const
{
    return dynamic_cast<Animations*>(m_document->documentEditor(CodeNode::Animation, 0));
}

}  // namespace Zorv
