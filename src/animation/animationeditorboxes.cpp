#include "animation/animationeditor_p.h"
#include "animation/edits/boxclipboard.h"
#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "graphics/renderwidget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Zorv {

namespace {

/// The question names how much would be lost.
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

/// Boxes are always copied by the host's own function.
BoxCopier AnimationEditorPrivate::boxCopier()
{
    return
        [this](FrameCode* source, FrameCode* target) { editor->copyContactBoxes(source, target); };
}

/// From the stage, which knows the boxes of the current text.
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

/// The selected boxes, or all boxes of the frame if none is selected.
QVector<BoxPlace> AnimationEditorPrivate::selectedOrAllBoxes() const
{
    const QVector<BoxPlace> selected = selectedBoxes();
    return selected.isEmpty() ? placesOf(currentFrame()) : selected;
}

QVector<FramePlace> AnimationEditorPrivate::selectedPlaces() const
{
    QVector<FramePlace> places;
    const QVector<int> frames = editor->selectedFrames();
    for (const int frame : frames) {
        places.append({animationIndex(), frame});
    }
    return places;
}

void AnimationEditorPrivate::boxCopy()
{
    if (beginAct() != FramePlace()) {
        QGuiApplication::clipboard()->setMimeData(
            copiedBoxes(currentFrame(), selectedOrAllBoxes()));
    }
}

void AnimationEditorPrivate::boxPaste()
{
    const BoxRects boxes = pastedBoxes(QGuiApplication::clipboard()->mimeData());
    if (boxes.count() > 0) {
        act([&](const FramePlace&) { addBoxes(animations, selectedPlaces(), boxes); });
    }
}

void AnimationEditorPrivate::boxMirror()
{
    act([this](const FramePlace& shown) { mirrorBoxes(animations, shown, selectedOrAllBoxes()); });
}

void AnimationEditorPrivate::boxToFrames()
{
    act([this](const FramePlace& shown) {
        copyBoxes(animations, shown, selectedPlaces(), boxCopier());
    });
}

void AnimationEditorPrivate::boxLock(bool isOn)
{
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
        renderer->setContactBoxesLocked(type, isOn);
    }
}

/// Decides what the clipboard commands act on: boxes if the stage has the keyboard focus, otherwise
/// the text.
bool AnimationEditorPrivate::isStageInUse() const
{
    return stage->renderWidget() && stage->renderWidget()->hasFocus();
}

void AnimationEditor::cut()
{
    if (d->isStageInUse()) {
        d->boxCopy();
        d->boxDel();
    } else {
        CodeFileEditor::cut();
    }
}

void AnimationEditor::copy()
{
    d->isStageInUse() ? d->boxCopy() : CodeFileEditor::copy();
}

void AnimationEditor::paste()
{
    d->isStageInUse() ? d->boxPaste() : CodeFileEditor::paste();
}

}  // namespace Zorv
