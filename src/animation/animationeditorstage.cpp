#include "animation/animationeditor_p.h"
#include "cache/sprite.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "graphics/graphicwork/graphicsworkspace.h"

#include <QAction>

namespace Zorv {

namespace {

constexpr int PlaceField = 3;

// A mode of the stage: relative to a cross, movable in both directions.
constexpr int OnCross = 14;

}  // namespace

void AnimationEditorPrivate::setDrawing(ContactBoxCode::BoxType type, bool isOn)
{
    if (updating > 0) {
        return;
    }
    if (!isOn) {
        leaveDrawing();
        return;
    }
    activatePanel();
    const Guard guard(&updating);
    setChecked("anim_box_add_attack", type == ContactBoxCode::Attack);
    setChecked("anim_box_add_collision", type == ContactBoxCode::Collision);
    renderer->setDrawContactBoxMode(type);
}

void AnimationEditorPrivate::boxAddAChanged(bool isOn)
{
    setDrawing(ContactBoxCode::Attack, isOn);
}

void AnimationEditorPrivate::boxAddCChanged(bool isOn)
{
    setDrawing(ContactBoxCode::Collision, isOn);
}

/// Leaves any other mode of the stage as it is.
void AnimationEditorPrivate::leaveDrawing()
{
    const Guard guard(&updating);
    setChecked("anim_box_add_attack", false);
    setChecked("anim_box_add_collision", false);
    if (renderer->clickMode() == GraphicsRenderer::DrawContactBoxMode) {
        renderer->setPositioningMode();
    }
}

ContactBoxCode* AnimationEditorPrivate::appendContactBox(ContactBoxCode::BoxType type, QRect rect)
{
    FrameCode* const frame = currentFrame();
    return frame && editor->isActive()
               ? editor->addContactBox(frame, type, rect.topLeft(), rect.bottomRight())
               : nullptr;
}

void AnimationEditorPrivate::showPlace(QPoint place)
{
    if (editor->isActive()) {
        host->showStatus(PlaceField,
                         AnimationEditor::tr("Stage: %1, %2")
                             .arg(QString::number(place.x()), QString::number(place.y())));
    }
}

unsigned AnimationEditorPrivate::count() const
{
    return currentSprite ? 1 : 0;
}

Sprite* AnimationEditorPrivate::at(unsigned index) const
{
    return index == 0 ? currentSprite : nullptr;
}

QVariant AnimationEditorPrivate::property(unsigned, unsigned key) const
{
    FrameCode* const frame = currentFrame();
    if (!frame || !currentSprite) {
        return {};
    }
    const QVariant value = editor->spriteProperty(frame, currentSprite, key);
    return preview && key == 0 ? QVariant(value.toPoint() + preview->shift()) : value;
}

QVariant AnimationEditor::spriteProperty(FrameCode* frame, Sprite* sprite, unsigned int key) const
{
    switch (key) {
    case 0:
        return frame->offset();
    case 1:
        return OnCross;
    case 2:
    case 7:
        return 0;
    case 3:
        return sprite->size();
    case 4:
        return QPointF(1, 1);
    default:
        return {};
    }
}

void AnimationEditor::frameChanged(FrameCode* frame)
{
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
        d->renderer->setContactBoxes(type, frame ? frame->contactBoxes(type) : nullptr);
    }
}

void AnimationEditor::itemMoved(GraphicsRenderer::ItemType type, void*, QPoint position)
{
    if (type == d->spriteItemType && d->currentFrame()) {
        const Guard guard(&d->updating);
        const QPoint offset = offsetToParentFromInterpolation(position);
        emit d->setFrameX(offset.x());
        emit d->setFrameY(offset.y());
    } else if (type == GraphicsRenderer::ExtraCross) {
        d->stage->setExtraAxis(position);
    }
}

/// Also when the grammar rejects the offset: then the stage must go back to the text's value.
void AnimationEditor::itemReleased(GraphicsRenderer::ItemType type, void* item, QPoint position)
{
    itemMoved(type, item, position);
    if (type == d->spriteItemType) {
        d->writeOffset(offsetToParentFromInterpolation(position));
        animationCodeChanged(false, false);
    } else if (type == GraphicsRenderer::ContactBoxesType) {
        {
            const Guard guard(&d->updating);
            d->renderer->updateSelectedBoxes();
        }
        animationCodeChanged(false, false);
    }
}

}  // namespace Zorv
