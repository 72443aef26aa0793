#include "animation/edits/frameplace.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"

namespace Zorv {

FrameCode* frameAt(const Animations* animations, const FramePlace& place)
{
    const AnimationCode* animation =
        animations && place.animation >= 0 ? animations->at(unsigned(place.animation)) : nullptr;
    return animation ? animation->frames().value(place.frame) : nullptr;
}

QVector<FramePlace> framesOf(const Animations* animations, int animation)
{
    const AnimationCode* code =
        animations && animation >= 0 ? animations->at(unsigned(animation)) : nullptr;
    QVector<FramePlace> result;
    const int count = code ? code->frames().size() : 0;
    for (int i = 0; i < count; ++i) {
        result.append({animation, i});
    }
    return result;
}

QVector<FramePlace> instancesOf(const Animations* animations, const FramePlace& place)
{
    QVector<FramePlace> result;
    const FrameCode* shown = frameAt(animations, place);
    if (!shown || shown->spriteGroup() < 0 || shown->spriteNumber() < 0) {
        return result;
    }
    for (int a = 0; a < animations->count(); ++a) {
        int f = 0;
        const QList<FrameCode*> frames = animations->at(unsigned(a))->frames();
        for (const FrameCode* frame : frames) {
            const bool isSame = frame->spriteGroup() == shown->spriteGroup() &&
                                frame->spriteNumber() == shown->spriteNumber();
            if (isSame && frame != shown) {
                result.append({a, f});
            }
            ++f;
        }
    }
    return result;
}

}  // namespace Zorv
