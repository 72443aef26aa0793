#include "code/codedoc/animationcode.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"
#include "code/codedoc/nodechain_p.h"

namespace Zorv {

AnimationCode::AnimationCode(CodeNode* previous) : ParentCode(CodeNode::Animation, previous)
{
    insertRootChild(this);
    AnimationCode::adopt();
}

void AnimationCode::adopt()
{
    for (CodeNode* node = next(); node; node = node->next()) {
        if (node->type() == CodeNode::Group || node->type() == CodeNode::Animation) {
            break;
        }
        if (node->type() == CodeNode::Frame) {
            AnimationCode::insertChild(node, unsigned(-1));
        }
    }
}

AnimationCode::~AnimationCode()
{
    AnimationCode::handOver();
}

void AnimationCode::handOver()
{
    if (m_frames.isEmpty()) {
        return;
    }
    CodeNode* above = NodeChain::backward(this, CodeNode::Group | CodeNode::Animation);
    const bool isAnimation = above && above->type() == CodeNode::Animation;
    while (CodeNode* frame = m_frames.at(0)) {
        if (isAnimation) {
            static_cast<AnimationCode*>(above)->insertChild(frame, unsigned(-1));
        } else {
            AnimationCode::removeChild(frame);
        }
    }
}

QStringList AnimationCode::propertyNames() const
{
    return NamedCode::propertyNames() << QStringLiteral("Identifier");
}

QString AnimationCode::code() const
{
    return selectAll().selectedText().trimmed();
}

void AnimationCode::setCode(const QString& text)
{
    if (CodeDocument* document = this->document()) {
        QTextCursor cursor = selectAll();
        document->replaceSelection(text.trimmed() + QLatin1String("\n\n"), cursor);
    }
}

QList<FrameCode*> AnimationCode::frames() const
{
    QList<FrameCode*> result;
    result.reserve(m_frames.size());
    for (CodeNode* node = m_frames.at(0); node; node = CodeNodeList::next(node)) {
        result.append(static_cast<FrameCode*>(node));
    }
    return result;
}

void AnimationCode::removeFrame(unsigned index)
{
    if (CodeNode* frame = m_frames.at(int(index))) {
        frame->remove(true);
    }
}

int AnimationCode::lastLine() const
{
    if (const CodeNode* node = NodeChain::forward(this, CodeNode::Group | CodeNode::Animation)) {
        return node->firstLine() - 1;
    }
    const CodeDocument* document = this->document();
    return document ? document->blockCount() : -1;
}

int AnimationCode::childCount() const
{
    return m_frames.size();
}

int AnimationCode::childIndex(CodeNode* child) const
{
    return m_frames.indexOf(child);
}

CodeNode* AnimationCode::childAt(unsigned index) const
{
    return m_frames.at(int(index));
}

void AnimationCode::insertChild(CodeNode* child, unsigned index)
{
    ParentCode::insertChild(child, index);
    m_frames.insert(index, child);
}

void AnimationCode::removeChild(CodeNode* child)
{
    ParentCode::removeChild(child);
    m_frames.remove(child);
}

}  // namespace Zorv
