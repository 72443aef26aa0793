#include "animation/framefacts.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

#include <algorithm>
#include <limits>

// One pass over the shown frames. Ticks without attack are collected in `behind`. The next attack
// frame turns them into `start` (if it is the first) or `pause`; what is left at the end is
// `recovery`. The pass ends at an endless frame.

namespace Zorv {

namespace {

/// Adds ticks; the result is `Endless` as soon as one operand is.
void add(int* sum, int ticks)
{
    if (*sum < 0 || ticks < 0) {
        *sum = FrameFacts::Endless;
    } else {
        *sum = int(std::min<qint64>(qint64(*sum) + ticks, std::numeric_limits<int>::max()));
    }
}

/// The right edge is inside the box, hence + 1.
int reachOf(const QRect& box)
{
    return std::max(box.right(), -1) < std::numeric_limits<int>::max()
               ? std::max(box.right(), -1) + 1
               : std::numeric_limits<int>::max();
}

FrameFacts::Frame frameOf(const FrameCode* frame)
{
    FrameFacts::Frame fact;
    fact.ticks = frame->delay();
    const ContactBoxesCode* boxes = frame->contactBoxes(ContactBoxCode::Attack);
    const int count = boxes ? boxes->count() : 0;
    fact.isAttack = count > 0;
    for (int i = 0; i < count; ++i) {
        fact.reach = std::max(fact.reach, reachOf(boxes->at(i)->rect()));
    }
    return fact;
}

QVector<FrameFacts::Frame> framesOf(const AnimationCode* animation)
{
    QVector<FrameFacts::Frame> frames;
    const CodeNode* node = animation ? animation->childAt(0) : nullptr;
    for (; node; node = CodeNodeList::next(node)) {
        if (node->type() == CodeNode::Frame) {
            frames.append(frameOf(static_cast<const FrameCode*>(node)));
        }
    }
    return frames;
}

}  // namespace

FrameFacts::FrameFacts(const AnimationCode* animation) : FrameFacts(framesOf(animation)) {}

FrameFacts::FrameFacts(const QVector<Frame>& frames)
{
    int behind = 0;  // the last attack frame
    for (const Frame& frame : frames) {
        if (frame.ticks == 0) {
            continue;
        }
        add(&total, frame.ticks);
        if (!frame.isAttack) {
            add(&behind, frame.ticks);
        } else {
            add(isAttack ? &pause : &start, behind);
            add(&active, frame.ticks);
            behind = 0;
            isAttack = true;
            reach = std::max(reach, frame.reach);
        }
        if (frame.ticks < 0) {
            break;
        }
    }
    recovery = isAttack ? behind : 0;
}

bool FrameFacts::operator==(const FrameFacts& other) const
{
    return isAttack == other.isAttack && start == other.start && active == other.active &&
           pause == other.pause && recovery == other.recovery && total == other.total &&
           reach == other.reach;
}

}  // namespace Zorv
