#include "operations/boxes/boxreport.h"

#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "operations/boxes/coveredarea.h"

#include <zorv/animation/frameticks.h>
#include <zorv/code/codedoc/contactboxescode.h>

#include <algorithm>
#include <limits>
#include <set>
#include <tuple>

namespace Operations {

using Family::AnimationNode;
using Family::FrameNode;
using Zorv::FrameTicks;

namespace {

using Zorv::ContactBoxCode;

constexpr int MostComparedBoxes = 200;
constexpr int MostTicks = std::numeric_limits<int>::max();

BoxesInFrame boxesOf(const FrameNode& frame, ContactBoxCode::BoxType type)
{
    BoxesInFrame result;
    const Zorv::ContactBoxesCode* list = frame.contactBoxes(type);
    for (int i = 0; i < list->count(); ++i) {
        const ContactBoxCode* box = list->at(i);
        BoxInFrame row;
        row.rect = upright(box->rect());
        row.line = box->line();
        result.boxes.append(row);
    }
    return result;
}

QVector<QRect> rectsOf(const BoxesInFrame& boxes)
{
    QVector<QRect> rects;
    rects.reserve(boxes.boxes.size());
    for (const BoxInFrame& box : boxes.boxes) {
        rects.append(box.rect);
    }
    return rects;
}

qint64 areaInside(const QRect& place, const QVector<QRect>& rects)
{
    QVector<QRect> parts;
    for (const QRect& rect : rects) {
        if (rect.intersects(place)) {
            parts.append(rect & place);
        }
    }
    return coveredArea(parts);
}

/// Computes the part of each attack box that body boxes cover. It compares every pair, so it skips
/// frames with very many boxes.
void compareWithBody(const BoxesInFrame& body, BoxesInFrame* attack, qint64 BoxInFrame::*result)
{
    if (std::max(attack->boxes.size(), body.boxes.size()) > MostComparedBoxes) {
        return;
    }
    const QVector<QRect> rects = rectsOf(body);
    for (BoxInFrame& box : attack->boxes) {
        box.*result = areaInside(box.rect, rects);
    }
}

struct RectOrder
{
    bool operator()(const QRect& a, const QRect& b) const { return key(a) < key(b); }

private:
    static std::tuple<int, int, int, int> key(const QRect& rect)
    {
        return {rect.left(), rect.top(), rect.right(), rect.bottom()};
    }
};

void compareWithNext(BoxesInFrame* boxes, const BoxesInFrame& next)
{
    const QVector<QRect> nextRects = rectsOf(next);
    const std::set<QRect, RectOrder> places(nextRects.begin(), nextRects.end());
    for (BoxInFrame& box : boxes->boxes) {
        box.stays = places.count(box.rect) > 0;
    }
    boxes->kept = sharedArea(rectsOf(*boxes), nextRects);
}

void compareWithNext(FrameBoxReport* frame, const FrameBoxReport& next)
{
    compareWithNext(&frame->attack, next.attack);
    compareWithNext(&frame->body, next.body);
    compareWithBody(next.body, &frame->attack, &BoxInFrame::inNextBody);
    frame->attackInNextBody = sharedArea(rectsOf(frame->attack), rectsOf(next.body));
}

FrameBoxReport reportOf(const FrameNode& node)
{
    FrameBoxReport frame;
    frame.line = node.block().blockNumber();
    frame.group = node.spriteGroup();
    frame.number = node.spriteNumber();
    frame.delay = node.delay();
    frame.attack = boxesOf(node, ContactBoxCode::Attack);
    frame.body = boxesOf(node, ContactBoxCode::Collision);
    compareWithBody(frame.body, &frame.attack, &BoxInFrame::inBody);
    frame.body.area = coveredArea(rectsOf(frame.body));
    frame.attack.area = coveredArea(rectsOf(frame.attack));
    frame.attackInBody = sharedArea(rectsOf(frame.attack), rectsOf(frame.body));
    return frame;
}

int reachOf(const FrameBoxReport& frame)
{
    int reach = frame.attack.boxes.first().rect.right();
    for (const BoxInFrame& box : frame.attack.boxes) {
        reach = std::max(reach, box.rect.right());
    }
    return reach;
}

/// The visible frames, in order.
QVector<int> shownFrames(const QVector<FrameBoxReport>& frames)
{
    QVector<int> shown;
    for (int i = 0; i < frames.size(); ++i) {
        if (frames[i].delay != 0) {
            shown.append(i);
        }
        if (frames[i].delay < 0) {
            break;
        }
    }
    return shown;
}

QVector<ActiveTime> activeTimes(const QVector<FrameBoxReport>& frames, const QVector<int>& shown)
{
    QVector<ActiveTime> times;
    bool isActive = false;
    for (const int index : shown) {
        const FrameBoxReport& frame = frames[index];
        if (frame.attack.boxes.isEmpty()) {
            isActive = false;
            continue;
        }
        if (!isActive) {
            times.append({index, index, frame.tick, 0, reachOf(frame)});
        }
        isActive = true;
        ActiveTime& time = times.last();
        time.lastFrame = index;
        const qint64 end = std::min<qint64>(qint64(frame.tick) + frame.delay, MostTicks);
        time.ticks = frame.delay < 0 ? -1 : int(end) - time.tick;
        time.reach = std::max(time.reach, reachOf(frame));
    }
    return times;
}

}  // namespace

AnimationBoxReport::AnimationBoxReport(const AnimationNode& animation)
{
    const FrameTicks clock(&animation);
    ticks = clock.total();
    frames.reserve(clock.frameCount());
    for (const Zorv::CodeNode* node = animation.childAt(0); node;
         node = Zorv::CodeNodeList::next(node)) {
        frames.append(reportOf(*static_cast<const FrameNode*>(node)));
        frames.last().tick = clock.firstTick(frames.size() - 1);
    }
    const QVector<int> shown = shownFrames(frames);
    for (int i = 0; i < shown.size(); ++i) {
        FrameBoxReport& frame = frames[shown[i]];
        const int again = ticks < 0 ? -1 : clock.frameAt(unsigned(clock.loopTick()));
        const int next = i + 1 < shown.size() ? shown[i + 1] : again;
        frame.isShown = true;
        if (next >= 0) {
            frame.next = next;
            compareWithNext(&frame, frames[next]);
        }
        if (frame.body.boxes.isEmpty()) {
            withoutBody.append(shown[i]);
            if (frame.attack.boxes.isEmpty()) {
                withoutBox.append(shown[i]);
            }
        }
    }
    active = activeTimes(frames, shown);
    if (!active.isEmpty() && active.last().ticks >= 0) {
        const int end = ticks < 0 ? frames[shown.last()].tick : ticks;
        recovery = end - active.last().tick - active.last().ticks;
    }
}

int AnimationBoxReport::reach() const
{
    int reach = active.isEmpty() ? 0 : active.first().reach;
    for (const ActiveTime& time : active) {
        reach = std::max(reach, time.reach);
    }
    return reach;
}

bool AnimationBoxReport::hasBoxes() const
{
    return std::any_of(frames.begin(), frames.end(), [](const FrameBoxReport& frame) {
        return !frame.attack.boxes.isEmpty() || !frame.body.boxes.isEmpty();
    });
}

}  // namespace Operations
