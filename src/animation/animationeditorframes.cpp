#include "animation/animationeditor_p.h"
#include "animation/edits/framevalues.h"
#include "code/codedoc/animations.h"

namespace Zorv {

FramePlace AnimationEditorPrivate::beginAct()
{
    activatePanel();
    commitFields();
    refreshIfStale();
    return updating == 0 && currentFrame() ? FramePlace{animationIndex(), frameIndex()}
                                           : FramePlace();
}

void AnimationEditorPrivate::act(const std::function<void(const FramePlace& shown)>& edit)
{
    const FramePlace shown = beginAct();
    if (shown == FramePlace()) {
        return;
    }
    {
        const Guard guard(&updating);
        edit(shown);
    }
    editor->animationCodeChanged(false, false);
}

void AnimationEditorPrivate::copyToNext(FrameValue value)
{
    act([&](const FramePlace& shown) { copyToNextFrames(animations, shown, value); });
}

void AnimationEditorPrivate::frameAllOffset()
{
    copyToNext(FrameValue::Offset);
}

void AnimationEditorPrivate::frameAllTime()
{
    copyToNext(FrameValue::Time);
}

void AnimationEditorPrivate::frameAllFlip()
{
    copyToNext(FrameValue::Flip);
}

void AnimationEditorPrivate::frameAllScale()
{
    copyToNext(FrameValue::Scale);
}

}  // namespace Zorv
