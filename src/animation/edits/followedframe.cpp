#include "animation/edits/followedframe_p.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/framecode.h"

#include <QHash>
#include <QTextBlock>

#include <algorithm>

namespace Zorv {

namespace {

void sortOnce(QVector<int>* numbers)
{
    std::sort(numbers->begin(), numbers->end());
    numbers->erase(std::unique(numbers->begin(), numbers->end()), numbers->end());
}

}  // namespace

EditStep::EditStep(Animations* animations, const QString& title) : m_animations(animations)
{
    m_animations->beginChange(title);
}

EditStep::~EditStep()
{
    m_animations->endChange();
}

FollowedFrame::FollowedFrame(const CodeDocument* document, int line)
    : m_document(document), m_line(document->findBlockByNumber(line))
{
}

FrameCode* FollowedFrame::get() const
{
    CodeNode* node = m_line.isNull() ? nullptr : m_document->nodeInBlock(m_line.block());
    return node && node->type() == CodeNode::Frame ? static_cast<FrameCode*>(node) : nullptr;
}

AnimationCode* animationAt(const Animations* animations, int animation)
{
    const bool isUsable = animations && animations->document() && animation >= 0;
    return isUsable ? animations->at(unsigned(animation)) : nullptr;
}

QVector<int> validPlaces(QVector<int> frames, int count)
{
    const auto isOutside = [count](int frame) { return frame < 0 || frame >= count; };
    frames.erase(std::remove_if(frames.begin(), frames.end(), isOutside), frames.end());
    sortOnce(&frames);
    return frames;
}

QVector<int> linesOf(const Animations* animations, const QVector<FramePlace>& places)
{
    QHash<int, QList<FrameCode*>> known;
    QVector<int> lines;
    for (const FramePlace& place : places) {
        auto frames = known.find(place.animation);
        if (frames == known.end()) {
            const AnimationCode* code = animationAt(animations, place.animation);
            frames = known.insert(place.animation, code ? code->frames() : QList<FrameCode*>());
        }
        if (const FrameCode* frame = frames->value(place.frame)) {
            lines.append(frame->block().blockNumber());
        }
    }
    sortOnce(&lines);
    return lines;
}

}  // namespace Zorv
