#include "animation/edits/frameboxes_p.h"

#include "code/codedoc/contactboxescode.h"
#include "code/codedoc/framecode.h"

#include <algorithm>

namespace Zorv {

ContactBoxesCode* FollowedBoxes::get() const
{
    const FrameCode* frame = m_frame.get();
    return frame ? frame->contactBoxes(m_type) : nullptr;
}

QVector<QRect> FollowedBoxes::rects() const
{
    const ContactBoxesCode* boxes = get();
    QVector<QRect> result;
    for (int i = 0; boxes && i < boxes->count(); ++i) {
        result.append(boxes->at(i)->rect());
    }
    return result;
}

EditCount FollowedBoxes::setRect(int index, const QRect& rect) const
{
    const ContactBoxesCode* boxes = get();
    ContactBoxCode* box = boxes ? boxes->at(index) : nullptr;
    if (!box || box->rect() == rect) {
        return {};
    }
    box->setRect(rect);
    boxes = get();
    box = boxes ? boxes->at(index) : nullptr;
    const bool isTaken = box && box->rect() == rect;
    return {int(isTaken), int(!isTaken)};
}

EditCount FollowedBoxes::remove(int index) const
{
    ContactBoxesCode* boxes = get();
    if (!boxes || !boxes->at(index)) {
        return {};
    }
    boxes->remove(index);
    return {1, 0};
}

EditCount FollowedBoxes::add(const QRect& rect) const
{
    ContactBoxesCode* boxes = get();
    const bool isTaken = boxes && boxes->add(rect);
    return {int(isTaken), int(!isTaken)};
}

void FollowedBoxes::setRects(const QVector<QRect>& rects) const
{
    const QVector<QRect> present = this->rects();
    int first = 0;
    int presentEnd = present.size();
    int end = rects.size();
    while (first < qMin(presentEnd, end) && present.at(first) == rects.at(first)) {
        ++first;
    }
    // New boxes can only be appended, so equal boxes at the end help only if none is missing.
    while (rects.size() <= present.size() && end > first &&
           present.at(presentEnd - 1) == rects.at(end - 1)) {
        --presentEnd;
        --end;
    }
    const int shared = qMin(presentEnd, end);
    for (int i = first; i < shared; ++i) {
        setRect(i, rects.at(i));
    }
    for (int i = presentEnd - 1; i >= shared; --i) {
        remove(i);
    }
    for (int i = shared; i < end; ++i) {
        add(rects.at(i));
    }
}

}  // namespace Zorv
