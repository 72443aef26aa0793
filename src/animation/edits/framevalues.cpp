#include "animation/edits/framevalues.h"

#include "animation/edits/followedframe_p.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/framecode.h"

#include <QMap>

namespace Zorv {

namespace {

/// Writes a value if it differs, and checks whether the frame accepted it.
template <class Value, class Set>
EditCount write(const FollowedFrame& frame, Value (FrameCode::*read)() const, Set set,
                const Value& value)
{
    if ((frame.get()->*read)() == value) {
        return {};
    }
    (frame.get()->*set)(value);
    const FrameCode* written = frame.get();
    const bool isTaken = written && (written->*read)() == value;
    return {int(isTaken), int(!isTaken)};
}

QString titleOf(FrameValue value)
{
    switch (value) {
    case FrameValue::Offset:
        return EditText::tr("Same offset for all frames of animation #%1");
    case FrameValue::Time:
        return EditText::tr("Same time for all frames of animation #%1");
    case FrameValue::Flip:
        return EditText::tr("Same flip for all frames of animation #%1");
    case FrameValue::Scale:
        break;
    }
    return EditText::tr("Same scale for all frames of animation #%1");
}

}  // namespace

EditCount copyToNextFrames(Animations* animations, const FramePlace& place, FrameValue value)
{
    const FrameCode* source = frameAt(animations, place);
    if (!source || !animations->document()) {
        return {};
    }
    const QPoint offset = source->offset();
    const int time = source->delay();
    const FrameCode::Flip flip = source->flip();
    const QPointF scale = source->scale();
    const QVector<int> lines =
        linesOf(animations, framesOf(animations, place.animation).mid(place.frame + 1));

    const EditStep step(animations, titleOf(value).arg(place.animation + 1));
    return editFrames(animations, lines, [&](const FollowedFrame& frame, int) {
        switch (value) {
        case FrameValue::Offset:
            return write(frame, &FrameCode::offset, &FrameCode::setOffset, offset);
        case FrameValue::Time:
            return write(frame, &FrameCode::delay, &FrameCode::setDelay, time);
        case FrameValue::Flip:
            return write(frame, &FrameCode::flip, &FrameCode::setFlip, flip);
        case FrameValue::Scale:
            break;
        }
        return write(frame, &FrameCode::scale, &FrameCode::setScale, scale);
    });
}

EditCount setTimes(Animations* animations, int animation, const QVector<FrameTime>& times)
{
    const AnimationCode* code = animationAt(animations, animation);
    if (!code) {
        return {};
    }
    const QList<FrameCode*> frames = code->frames();
    QMap<int, int> ticksOfLine;
    for (const FrameTime& time : times) {
        if (const FrameCode* frame = frames.value(time.frame)) {
            ticksOfLine.insert(frame->block().blockNumber(), qMax(time.ticks, -1));
        }
    }
    const EditStep step(animations, EditText::tr("Change time of frames"));
    const QVector<int> ticks = ticksOfLine.values().toVector();
    return editFrames(animations, ticksOfLine.keys().toVector(),
                      [&ticks](const FollowedFrame& frame, int i) {
                          return write(frame, &FrameCode::delay, &FrameCode::setDelay, ticks.at(i));
                      });
}

}  // namespace Zorv
