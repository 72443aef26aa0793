#include "code/codedoc/framecode.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codenodelist.h"
#include "code/codedoc/nodechain_p.h"

namespace Zorv {

namespace {

/// The frames of the chain between `node` and the animation in front of it.
unsigned framesBefore(const CodeNode* node)
{
    unsigned count = 0;
    for (CodeNode* n = node->previous(); n && n->type() != CodeNode::Animation; n = n->previous()) {
        count += n->type() == CodeNode::Frame ? 1 : 0;
    }
    return count;
}

}  // namespace

FrameCode::FrameCode(CodeNode* previous, ContactBoxesCode* first, ContactBoxesCode* second)
    : ParentCode(CodeNode::Frame, previous), m_first(first), m_second(second)
{
    CodeNode* head = NodeChain::backward(this, CodeNode::Group | CodeNode::Animation);
    if (!head || head->type() != CodeNode::Animation) {
        return;
    }
    auto* animation = static_cast<AnimationCode*>(head);
    CodeNode* before = NodeChain::backward(this, CodeNode::Frame | CodeNode::Animation);
    if (before == head) {
        animation->insertChild(this, 0);
    } else if (before->parentCode() == animation) {
        animation->insertChild(this, unsigned(animation->childIndex(before)) + 1);
    } else {
        animation->insertChild(this, framesBefore(this));
    }
}

QStringList FrameCode::propertyNames() const
{
    return {QStringLiteral("Identifier"), QStringLiteral("Offset"), QStringLiteral("Delay"),
            QStringLiteral("Scale"),      QStringLiteral("Angle"),  QStringLiteral("Flip"),
            QStringLiteral("LoopPoint")};
}

int FrameCode::index() const
{
    return parentCode() ? parentCode()->childIndex(const_cast<FrameCode*>(this)) : -1;
}

int FrameCode::firstLine() const
{
    if (!parentCode()) {
        return CodeNode::firstLine();
    }
    const CodeNode* before = CodeNodeList::previous(this);
    return (before ? before->lastLine() : parentCode()->CodeNode::lastLine()) + 1;
}

ContactBoxesCode* FrameCode::contactBoxes(ContactBoxCode::BoxType type) const
{
    return type & 1 ? m_first : m_second;
}

int FrameCode::childCount() const
{
    return 0;
}

int FrameCode::childIndex(CodeNode*) const
{
    return -1;
}

CodeNode* FrameCode::childAt(unsigned) const
{
    return nullptr;
}

}  // namespace Zorv
