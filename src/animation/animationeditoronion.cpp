#include "animation/animationeditor_p.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "graphics/stage/onionskin.h"
#include "graphics/stage/positionmode.h"

#include <QAbstractSlider>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

constexpr int MostSkins = 3;  // on each side

// Warm for earlier frames and cold for later ones, so that everybody can tell them apart. Farther
// frames are fainter.
const QColor BeforeColor(255, 150, 40);
const QColor AfterColor(50, 160, 255);
constexpr float Opacities[MostSkins] = {1.0F, 0.65F, 0.4F};

int countOption(const Interface* host, const char* key)
{
    return qBound(0, host->option(QLatin1String(key)).toInt(), MostSkins);
}

/// The frames before and after a frame in playback order: a pass that ends continues at the loop
/// point.
class PlayedFrames
{
public:
    explicit PlayedFrames(const FrameTicks& ticks)
        : m_last(ticks.frameCount() - 1), m_loop(qMax(ticks.loopFrame(), 0)),
          m_loops(ticks.total() >= 0)
    {
    }

    int after(int frame) const { return frame < m_last ? frame + 1 : m_loops ? m_loop : -1; }
    int before(int frame) const { return frame == m_loop && m_loops ? m_last : frame - 1; }

private:
    int m_last;
    int m_loop;
    bool m_loops;
};

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
    const bool hasNeighbours = onion.before > 0 || onion.after > 0;
    editor->onionFrameChanged(onion.enabled && !hasNeighbours ? frame : nullptr);
    fillSkins();
}

/// Collects the neighbours of the shown frame, farthest first so that near ones are drawn on top. A
/// short loop can reach a frame twice; each frame is drawn once.
void AnimationEditorPrivate::fillSkins()
{
    QVector<OnionSkin> skins;
    const int shown = onion.enabled ? frameIndex() : -1;
    if (shown >= 0) {
        const PlayedFrames frames(followed.ticks());
        QVector<int> known{shown};
        int before = shown;
        int after = shown;
        const auto add = [&](int frame, int step, const QColor& color) {
            if (frame >= 0 && !known.contains(frame)) {
                known.append(frame);
                appendSkin(&skins, frame, Opacities[step], color);
            }
        };
        for (int step = 0; step < MostSkins; ++step) {
            before = step < onion.before && before >= 0 ? frames.before(before) : -1;
            after = step < onion.after && after >= 0 ? frames.after(after) : -1;
            add(before, step, BeforeColor);
            add(after, step, AfterColor);
        }
        std::reverse(skins.begin(), skins.end());
    }
    renderer->setOnionSkins(skins);
}

/// Places a frame as if it were the shown one. If its sprite is anchored to the cross that follows
/// the frame's offset, the skin needs that offset too: the cross on the stage follows the shown
/// frame.
void AnimationEditorPrivate::appendSkin(QVector<OnionSkin>* skins, int index, float opacity,
                                        const QColor& color) const
{
    FrameCode* const frame = followed.frame(index);
    Sprite* const sprite = frame ? frame->sprite() : nullptr;
    if (!sprite) {
        return;
    }
    const auto told = [&](unsigned key) { return editor->spriteProperty(frame, sprite, key); };
    const auto mode = static_cast<unsigned char>(told(1).toUInt());
    OnionSkin skin;
    skin.sprite = sprite;
    skin.position = told(0).toPoint();
    if (positionMode(mode) == CrossAnchor && told(2).toInt() == spriteItemType) {
        skin.axis = frame->offset();
    }
    skin.size = told(3).toSize();
    skin.scale = told(4).isValid() ? told(4).toPointF() : skin.scale;
    skin.flip = static_cast<unsigned char>(told(5).toUInt());
    const float rotation = told(6).toFloat();
    skin.rotation = std::isfinite(rotation) ? rotation : 0.0F;
    skin.opacity = opacity;
    skin.color = color;
    skins->append(skin);
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
    onion.before = countOption(host, "onion_before");
    onion.after = countOption(host, "onion_after");
    {
        const Guard guard(&updating);
        for (const char* name : {"anim_onion_before", "anim_onion_after"}) {
            if (auto* field = widget<QSpinBox>(name)) {
                field->setRange(0, MostSkins);
            }
        }
        emit setOnionBefore(onion.before);
        emit setOnionAfter(onion.after);
    }
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

void AnimationEditorPrivate::onionBeforeChanged(int count)
{
    setNeighbours("onion_before", &onion.before, count);
}

void AnimationEditorPrivate::onionAfterChanged(int count)
{
    setNeighbours("onion_after", &onion.after, count);
}

void AnimationEditorPrivate::setNeighbours(const char* key, int* field, int count)
{
    if (updating > 0) {
        return;
    }
    *field = qBound(0, count, MostSkins);
    host->setOption(QLatin1String(key), *field);
    fillOnion();
    renderer->Renderer::update();
}

void AnimationEditor::onionFrameChanged(FrameCode* frame)
{
    d->renderer->replaceOnionSkinSprite(frame ? frame->sprite() : nullptr,
                                        frame ? -frame->offset() : QPoint());
}

}  // namespace Zorv
