#include "animation/frameticks.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/framecode.h"

#include <algorithm>
#include <limits>

// The constructor computes at which tick each frame starts. A frame of 0 ticks gets the start of
// the next frame; frames after an endless one get the start of that one. `m_shown` lists the frames
// that are really shown, up to the first endless one, since nothing after it is ever reached. Their
// starts increase strictly, so `frameAt()` can use a binary search.

namespace Zorv {

namespace {

const QColor endlessColor(190, 110, 40);
const QColor loopColor(140, 190, 40);
const QColor frameColor(160, 140, 40);

int sumOf(int ticks, int delay)
{
    return int(std::min<qint64>(qint64(ticks) + delay, std::numeric_limits<int>::max()));
}

template <class Visit>
void forEachFrame(const AnimationCode* animation, const Visit& visit)
{
    const CodeNode* node = animation ? animation->childAt(0) : nullptr;
    for (; node; node = CodeNodeList::next(node)) {
        if (node->type() == CodeNode::Frame) {
            visit(*static_cast<const FrameCode*>(node));
        }
    }
}

QVector<int> delaysOf(const AnimationCode* animation)
{
    QVector<int> delays;
    delays.reserve(animation ? animation->childCount() : 0);
    forEachFrame(animation, [&](const FrameCode& frame) { delays.append(frame.delay()); });
    return delays;
}

}  // namespace

FrameTicks::FrameTicks(const AnimationCode* animation)
    : FrameTicks(delaysOf(animation), animation ? animation->loopFrame() : -1)
{
    int index = 0;
    m_marked.clear();
    forEachFrame(animation, [&](const FrameCode& frame) {
        if (frame.isLoopPoint()) {
            m_marked.append(index);
        }
        ++index;
    });
}

FrameTicks::FrameTicks(const QVector<int>& delays, int loopFrame)
    : m_delays(delays),
      m_loopFrame(loopFrame < delays.size() ? loopFrame : -1), m_marked{m_loopFrame}
{
    m_starts.reserve(delays.size());
    int ticks = 0;
    for (int frame = 0; frame < delays.size(); ++frame) {
        m_starts.append(ticks);
        if (delays[frame] != 0 && m_total == 0) {
            m_shown.append(frame);
        }
        if (delays[frame] < 0) {
            m_total = -1;
        } else if (m_total == 0) {
            ticks = sumOf(ticks, delays[frame]);
        }
    }
    m_total = m_total < 0 ? -1 : ticks;
}

int FrameTicks::frameAt(unsigned tick) const
{
    const auto behind =
        std::upper_bound(m_shown.begin(), m_shown.end(), tick, [this](unsigned wanted, int frame) {
            return wanted < unsigned(m_starts[frame]);
        });
    return behind == m_shown.begin() ? frameCount() - 1 : *std::prev(behind);
}

int FrameTicks::firstTick(int frame) const
{
    return m_starts.value(frame);
}

int FrameTicks::endTick(int frame) const
{
    if (frame < 0 || frame >= frameCount()) {
        return 0;
    }
    const bool isEndless = m_total < 0 && frame >= m_shown.last();
    return isEndless ? -1 : sumOf(m_starts[frame], m_delays[frame]);
}

bool FrameTicks::canLoop() const
{
    return m_total < 0 || firstTick(std::max(m_loopFrame, 0)) < m_total;
}

int FrameTicks::loopTick() const
{
    const int tick = firstTick(m_loopFrame);
    return tick < m_total || m_total < 0 ? tick : 0;
}

bool FrameTicks::markerAt(unsigned tick, TimeLine::Marker& marker) const
{
    const int frame = frameAt(tick);
    if (frame < 0 || delay(frame) == 0 || unsigned(firstTick(frame)) != tick) {
        return false;
    }
    marker.length = delay(frame);
    const bool isMarked = std::binary_search(m_marked.begin(), m_marked.end(), frame);
    marker.color = marker.length < 0 ? endlessColor : isMarked ? loopColor : frameColor;
    return true;
}

}  // namespace Zorv
