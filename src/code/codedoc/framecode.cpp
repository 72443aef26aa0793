#include "code/codedoc/framecode.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codenodelist.h"
#include "code/codedoc/nodechain_p.h"

namespace Zorv {

FrameCode::FrameCode(CodeNode* previous, ContactBoxesCode* first, ContactBoxesCode* second)
    : ParentCode(CodeNode::Frame, previous), m_first(first), m_second(second)
{
    CodeNode* head = NodeChain::backward(this, CodeNode::Group | CodeNode::Animation);
    if (head && head->type() == CodeNode::Animation) {
        const unsigned place = NodeChain::before(this).frames - NodeChain::before(head).frames;
        static_cast<AnimationCode*>(head)->insertChild(this, place);
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
    const ParentCode* parent = parentCode();
    const bool isFrame = parent && parent->type() == CodeNode::Animation;
    return isFrame ? static_cast<const AnimationCode*>(parent)->indexOfFrame(this) : -1;
}

int FrameCode::firstLine() const
{
    if (!parentCode()) {
        return CodeNode::firstLine();
    }
    const CodeNode* before = CodeNodeList::previous(this);
    while (before && before->type() != CodeNode::Frame) {
        before = CodeNodeList::previous(before);
    }
    return (before ? before->lastLine() : parentCode()->CodeNode::lastLine()) + 1;
}

QVariant FrameCode::identifier() const
{
    return {};
}

int FrameCode::spriteGroup() const
{
    return -1;
}

int FrameCode::spriteNumber() const
{
    return -1;
}

QPoint FrameCode::offset() const
{
    return {};
}

int FrameCode::delay() const
{
    return 1;
}

QPointF FrameCode::scale() const
{
    return {1, 1};
}

double FrameCode::angle() const
{
    return 0;
}

FrameCode::Flip FrameCode::flip() const
{
    return NoFlip;
}

bool FrameCode::isLoopPoint() const
{
    return false;
}

Sprite* FrameCode::sprite() const
{
    return nullptr;
}

void FrameCode::setIdentifier(const QVariant&) {}

void FrameCode::setSprite(int, int) {}

void FrameCode::setOffset(const QPoint&) {}

void FrameCode::setDelay(int) {}

void FrameCode::setScale(const QPointF&) {}

void FrameCode::setAngle(double) {}

void FrameCode::setFlip(Flip) {}

void FrameCode::setLoopPoint(bool) {}

void FrameCode::boxesChanged() {}

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
