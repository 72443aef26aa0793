#include "animation/edits/alignment.h"

#include "animation/edits/frameboxes_p.h"

#include "code/codedoc/framecode.h"

#include <limits>

namespace Zorv {

namespace {

/// One dimension of a box: left and right, or top and bottom.
struct Side
{
    qint64 first;
    qint64 last;
};

int toInt(qint64 number)
{
    return int(
        qBound<qint64>(std::numeric_limits<int>::min(), number, std::numeric_limits<int>::max()));
}

Side alignedSide(Side side, Alignment::Mode mode, qint64 by)
{
    switch (mode) {
    case Alignment::OffsetAxis:
        return side;
    case Alignment::OffsetBoxes:
        return {side.first + by, side.last + by};
    case Alignment::ResizeTopLeft:
        return {qMin(side.first - by, side.last), side.last};
    case Alignment::ResizeBottomRight:
        return {side.first, qMax(side.last + by, side.first)};
    case Alignment::ScaleBoxes:
        break;
    }
    const qint64 first = by * side.first / 100;
    const qint64 last = first - 1 + by * (side.last - side.first + 1) / 100;
    return {first, qMax(first, last)};
}

EditCount alignOffset(const FollowedFrame& frame, const Alignment& alignment)
{
    const QPoint before = frame.get()->offset();
    const QPoint after = aligned(before, alignment);
    if (before == after) {
        return {};
    }
    frame.get()->setOffset(after);
    const bool isTaken = frame.get() && frame.get()->offset() == after;
    return {int(isTaken), int(!isTaken)};
}

EditCount alignBoxes(const FollowedFrame& frame, const Alignment& alignment)
{
    EditCount count;
    for (const auto type : EditedBoxTypes) {
        const FollowedBoxes boxes(frame, type);
        const QVector<QRect> rects = boxes.rects();
        for (int i = 0; i < rects.size(); ++i) {
            count += boxes.setRect(i, aligned(rects.at(i), alignment));
        }
    }
    return count;
}

}  // namespace

QString alignmentText(Alignment::Mode mode)
{
    switch (mode) {
    case Alignment::OffsetAxis:
        return EditText::tr("Offset axis");
    case Alignment::OffsetBoxes:
        return EditText::tr("Offset Contact boxes");
    case Alignment::ResizeTopLeft:
        return EditText::tr("Resize Contact boxes (top-left)");
    case Alignment::ResizeBottomRight:
        return EditText::tr("Resize Contact boxes (bottom-right)");
    case Alignment::ScaleBoxes:
        break;
    }
    return EditText::tr("Scale Contact boxes");
}

QPoint aligned(const QPoint& offset, const Alignment& alignment)
{
    return alignment.mode == Alignment::OffsetAxis ? QPoint(toInt(qint64(offset.x()) + alignment.x),
                                                            toInt(qint64(offset.y()) + alignment.y))
                                                   : offset;
}

QRect aligned(const QRect& box, const Alignment& alignment)
{
    const Side across = alignedSide({box.left(), box.right()}, alignment.mode, alignment.x);
    const Side down = alignedSide({box.top(), box.bottom()}, alignment.mode, alignment.y);
    QRect result;
    result.setCoords(toInt(across.first), toInt(down.first), toInt(across.last), toInt(down.last));
    return result;
}

EditCount align(Animations* animations, const QVector<int>& indexes, const Alignment& alignment)
{
    QVector<FramePlace> places;
    for (const int index : indexes) {
        places += framesOf(animations, index);
    }
    const QVector<int> lines = linesOf(animations, places);
    if (lines.isEmpty()) {
        return {};
    }
    const EditStep step(animations, alignmentText(alignment.mode));
    return editFrames(animations, lines, [&alignment](const FollowedFrame& frame, int) {
        return alignment.mode == Alignment::OffsetAxis ? alignOffset(frame, alignment)
                                                       : alignBoxes(frame, alignment);
    });
}

}  // namespace Zorv
