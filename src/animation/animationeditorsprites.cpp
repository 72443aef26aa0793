#include "animation/animationeditor_p.h"
#include "animation/edits/frameorder.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"

#include <numeric>

namespace Zorv {

/// Gives a new animation one frame per sprite. They replace the frames of the template, but not
/// frames that the user has written.
void AnimationEditorPrivate::giveSprites(int animation, const QVector<SpriteNumber>& sprites,
                                         bool isTemplate)
{
    const AnimationCode* made = animations->at(unsigned(animation));
    QVector<int> before(made->frameCount());
    std::iota(before.begin(), before.end(), 0);
    const int place = insertFrames(animations, animation, before.size(), sprites);
    if (place >= 0 && isTemplate) {
        removeFrames(animations, animation, before);
    }
}

void AnimationEditor::addSprites(int index, const QVector<SpriteNumber>& sprites)
{
    d->commitFields();
    d->stop();
    d->activatePanel();
    if (!d->currentAnimation()) {
        return;
    }
    int place = -1;
    {
        const Guard guard(&d->updating);
        place = insertFrames(d->animations, d->animationIndex(), index, sprites);
    }
    if (place >= 0) {
        d->showFrame(place + sprites.size() - 1);
        animationCodeChanged(true, false);
    }
}

void AnimationEditor::newAnimation(const QVector<SpriteNumber>& sprites)
{
    d->addAnimation(sprites);
}

}  // namespace Zorv
