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
    if (m_children.isEmpty()) {
        return;
    }
    CodeNode* above = NodeChain::backward(this, CodeNode::Group | CodeNode::Animation);
    auto* heir = above && above->type() == CodeNode::Animation ? static_cast<AnimationCode*>(above)
                                                               : nullptr;
    while (CodeNode* child = m_children.at(0)) {
        if (heir && child->type() == CodeNode::Frame) {
            heir->insertChild(child, unsigned(-1));
        } else {
            AnimationCode::removeChild(child);
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
    return m_children.ofType<FrameCode>(CodeNode::Frame);
}

int AnimationCode::frameCount() const
{
    return m_isMixed ? frames().size() : m_children.size();
}

FrameCode* AnimationCode::frame(int index) const
{
    if (m_isMixed) {
        return frames().value(index);
    }
    return index >= 0 && index < m_children.size() ? static_cast<FrameCode*>(m_children.at(index))
                                                   : nullptr;
}

int AnimationCode::indexOfFrame(const FrameCode* frame) const
{
    return m_isMixed ? frames().indexOf(const_cast<FrameCode*>(frame)) : m_children.indexOf(frame);
}

void AnimationCode::removeFrame(unsigned index)
{
    if (FrameCode* frame = frames().value(int(index))) {
        frame->remove(true);
    }
}

QString AnimationCode::frameTemplate(const FrameCode*) const
{
    return {};
}

/// The parser may replace the nodes of all lines that the edit touches, so they are looked up
/// again.
FrameCode* AnimationCode::insertFrame(unsigned index)
{
    CodeDocument* document = this->document();
    const QList<FrameCode*> all = frames();
    const int place = int(qMin(index, unsigned(all.size())));
    const FrameCode* before = all.value(place - 1);
    const QString text = frameTemplate(before);
    if (text.isEmpty() || !document) {
        return nullptr;
    }
    const int headLine = block().blockNumber();
    const CodeNode* above = before ? static_cast<const CodeNode*>(before) : this;
    const int line = above->block().blockNumber() + 1;
    document->insertAfter(above, text, true);

    const CodeNode* head = document->nodeInBlock(document->findBlockByNumber(headLine));
    if (!head || head->type() != CodeNode::Animation) {
        return nullptr;
    }
    // The template may not parse as a frame: only a frame in the inserted lines counts.
    FrameCode* made = static_cast<const AnimationCode*>(head)->frames().value(place);
    const int madeLine = made ? made->block().blockNumber() : -1;
    return madeLine >= line && madeLine <= line + text.count(QLatin1Char('\n')) ? made : nullptr;
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
    return m_children.size();
}

int AnimationCode::childIndex(CodeNode* child) const
{
    return m_children.indexOf(child);
}

CodeNode* AnimationCode::childAt(unsigned index) const
{
    return m_children.at(int(index));
}

void AnimationCode::insertChild(CodeNode* child, unsigned index)
{
    ParentCode::insertChild(child, index);
    m_children.insert(index, child);
    m_isMixed = m_isMixed || child->type() != CodeNode::Frame;
}

void AnimationCode::removeChild(CodeNode* child)
{
    ParentCode::removeChild(child);
    m_children.remove(child);
}

}  // namespace Zorv
