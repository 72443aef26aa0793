#include "animation/animationeditor_p.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"

#include <QAbstractSlider>

namespace Zorv {

namespace {

void setRange(QAbstractSlider* slider, int count)
{
    if (slider) {
        slider->setRange(0, qMax(count - 1, 0));
    }
}

template <class Node>
QString identifierOf(const Node* node)
{
    return node ? node->property(QStringLiteral("Identifier")).toString()
                : AnimationEditor::tr("none");
}

}  // namespace

void AnimationEditorPrivate::updateOnionRange()
{
    const Guard guard(&updating);
    const int count = animationCount();
    onion.animationIndex = qBound(0, onion.animationIndex, qMax(count - 1, 0));
    const AnimationCode* chosen =
        animations ? animations->at(unsigned(onion.animationIndex)) : nullptr;
    setRange(widget<QAbstractSlider>("anim_onion_sel"), count);
    setRange(widget<QAbstractSlider>("anim_onion_framesel"), chosen ? chosen->frameCount() : 0);
    fillOnion();
}

void AnimationEditorPrivate::fillOnion()
{
    const Guard guard(&updating);
    const AnimationCode* chosen =
        animations ? animations->at(unsigned(onion.animationIndex)) : nullptr;
    FrameCode* frame = chosen ? chosen->frame(onion.frameIndex) : nullptr;
    emit setOnionSkin(onion.enabled);
    emit setOnionSelPos(onion.animationIndex);
    emit setOnionFrameSelPos(onion.frameIndex);
    emit setOnionText(chosen ? AnimationEditor::tr("Animation: %1, Frame: %2")
                                   .arg(identifierOf(chosen), identifierOf(frame))
                             : AnimationEditor::tr("Animation: none, Frame: none"));
    editor->onionFrameChanged(onion.enabled ? frame : nullptr);
}

void AnimationEditorPrivate::onionSkinChanged(bool isOn)
{
    if (updating > 0) {
        return;
    }
    onion.enabled = isOn;
    onion.animationIndex = qMax(animationIndex(), 0);
    applyOnion();
    updateOnionRange();
    renderer->Renderer::update();
}

void AnimationEditorPrivate::applyOnion()
{
    const int effect = qBound(0, host->option(QStringLiteral("onion_effect")).toInt(), 3);
    const double opacity = host->option(QStringLiteral("onion_opacity")).toDouble();
    renderer->setOnionSkin(onion.enabled, GraphicsRenderer::OnionEffect(effect),
                           float(qBound(0.0, opacity, 1.0)));
}

void AnimationEditorPrivate::onionSelPosChanged(int index)
{
    if (updating > 0) {
        return;
    }
    onion.animationIndex = index;
    onion.frameIndex = 0;
    updateOnionRange();
    renderer->Renderer::update();
}

void AnimationEditorPrivate::onionFrameSelPosChanged(int index)
{
    if (updating > 0) {
        return;
    }
    onion.frameIndex = index;
    fillOnion();
    renderer->Renderer::update();
}

void AnimationEditor::onionFrameChanged(FrameCode* frame)
{
    d->renderer->replaceOnionSkinSprite(frame ? frame->sprite() : nullptr,
                                        frame ? -frame->offset() : QPoint());
}

}  // namespace Zorv
