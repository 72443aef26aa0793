#include "animation/animationeditor_p.h"
#include "code/codedoc/animations.h"

namespace Zorv {

/// The box if exactly one is selected; otherwise a null rectangle.
QRect AnimationEditorPrivate::selectedRect() const
{
    const QVector<GraphicsRenderer::SelectedBox> boxes = renderer->selectedBoxes();
    return boxes.size() == 1 ? boxes.first().rect : QRect();
}

/// Reads from the stage, not from the text: during a drag the stage is ahead of the text.
void AnimationEditorPrivate::fillBox()
{
    if (!editor->isActive()) {
        return;
    }
    const Guard guard(&updating);
    const QRect rect = selectedRect();
    emit setBoxX(rect.x());
    emit setBoxY(rect.y());
    emit setBoxWidth(rect.width());
    emit setBoxHeight(rect.height());
    emit boxEnabled(isEnabled.frameNC && rect.isValid());
}

/// Goes through the stage, so that the box stays selected.
void AnimationEditorPrivate::writeBox(QRect rect)
{
    refreshIfStale();
    const QRect present = selectedRect();
    if (updating > 0 || !present.isValid() || !rect.isValid() || rect == present) {
        return;
    }
    {
        const Guard guard(&updating);
        animations->beginChange(frameTitle(AnimationEditor::tr("Contact box of frame #%1")));
        renderer->setSelectedBoxRect(rect);
        renderer->updateSelectedBoxes();
        animations->endChange();
    }
    editor->animationCodeChanged(false, false);
}

void AnimationEditorPrivate::editBox(void (QRect::*edit)(int), int value)
{
    QRect rect = selectedRect();
    (rect.*edit)(value);
    writeBox(rect);
}

void AnimationEditorPrivate::boxXChanged(int x)
{
    editBox(&QRect::moveLeft, x);
}

void AnimationEditorPrivate::boxYChanged(int y)
{
    editBox(&QRect::moveTop, y);
}

void AnimationEditorPrivate::boxWidthChanged(int width)
{
    editBox(&QRect::setWidth, width);
}

void AnimationEditorPrivate::boxHeightChanged(int height)
{
    editBox(&QRect::setHeight, height);
}

}  // namespace Zorv
