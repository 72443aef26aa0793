#include "animation/animationeditor_p.h"
#include "animation/edits/boxedits.h"
#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"

namespace Zorv {

namespace {

/// The question names what is at stake.
bool mayReplace(int frames, int boxes)
{
    const QString text = AnimationEditor::tr(
        "Do you really want to replicate Contact boxes of current frame in all its instances?\n"
        "All existing Contact boxes in these frames will be replaced.");
    const QString counts = AnimationEditor::tr("Frames: %1. Contact boxes that they have: %2.")
                               .arg(QString::number(frames), QString::number(boxes));
    return Dialogs::instance()->question(AnimationEditor::tr("Confirmation"),
                                         text + QLatin1String("\n\n") + counts,
                                         Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

}  // namespace

/// The host's own way, as everywhere in the editor.
BoxCopier AnimationEditorPrivate::boxCopier()
{
    return
        [this](FrameCode* source, FrameCode* target) { editor->copyContactBoxes(source, target); };
}

/// As the stage has them, which knows the text of now.
QVector<BoxPlace> AnimationEditorPrivate::selectedBoxes() const
{
    return placesOf(currentFrame(), renderer->selectedContactBoxes());
}

void AnimationEditorPrivate::boxDel()
{
    act([this](const FramePlace&) { renderer->removeSelectedContactBoxes(); });
}

void AnimationEditorPrivate::boxDelAll()
{
    act([this](const FramePlace& shown) { removeAllBoxes(animations, shown); });
}

void AnimationEditorPrivate::boxDelAllAnim()
{
    act([this](const FramePlace& shown) { removeAllBoxes(animations, shown.animation); });
}

void AnimationEditorPrivate::boxSwType()
{
    act([this](const FramePlace& shown) { switchBoxTypes(animations, shown, selectedBoxes()); });
}

void AnimationEditorPrivate::boxPrev()
{
    act([this](const FramePlace& shown) {
        copyBoxes(animations, {shown.animation, shown.frame - 1}, {shown}, boxCopier());
    });
}

void AnimationEditorPrivate::boxAllInst()
{
    const QVector<FramePlace> instances = instancesOf(animations, beginAct());
    if (instances.isEmpty()) {
        Dialogs::instance()->information(
            AnimationEditor::tr("Confirmation"),
            AnimationEditor::tr("No other frame shows the sprite of this one."));
    } else if (mayReplace(instances.size(), countBoxes(animations, instances))) {
        act([this](const FramePlace& shown) {
            copyBoxesToInstances(animations, shown, boxCopier());
        });
    }
}

}  // namespace Zorv
