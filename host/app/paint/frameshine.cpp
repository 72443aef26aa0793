#include "app/paint/frameshine.h"

#include <zorv/animation/animationeditor.h>
#include <zorv/cache/sprite.h>
#include <zorv/code/codedoc/animationcode.h>
#include <zorv/code/codedoc/framecode.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>

#include <QTransform>

namespace App {

using Zorv::FrameCode;
using Zorv::ImageRenderer;
using Zorv::Sprite;

namespace {

constexpr double Opacity = 0.35;
constexpr double LargestSide = 8192;  // of what is shown of a scaled frame

/// From pixels of a picture to the game, as a frame shows it.
QTransform placeOf(const FrameCode& frame, QPoint axis)
{
    const bool isLeft = frame.flip() & FrameCode::FlipHorizontally;
    const bool isUp = frame.flip() & FrameCode::FlipVertically;
    QTransform place;
    place.translate(frame.offset().x(), frame.offset().y());
    place.rotate(-frame.angle());
    place.scale(frame.scale().x() * (isLeft ? -1 : 1), frame.scale().y() * (isUp ? -1 : 1));
    place.translate(-double(axis.x()), -double(axis.y()));
    return place;
}

}  // namespace

FrameShine::FrameShine(Zorv::SpriteEditor* sprites, const Zorv::AnimationEditor* animations,
                       QObject* parent)
    : QObject(parent), m_sprites(sprites), m_animations(animations)
{
    connect(sprites, &Zorv::SpriteEditor::spriteShown, this, &FrameShine::update);
    connect(sprites->renderer()->canvas(), &Zorv::ImageCanvas::axisChanged, this,
            &FrameShine::update);
}

void FrameShine::setOn(bool isOn)
{
    m_isOn = isOn;
    update();
}

int FrameShine::frameOfCanvas() const
{
    const Zorv::AnimationCode* animation = m_animations->currentAnimation();
    const Sprite* shown = m_sprites->sprite();
    const auto shows = [&](int index) {
        const FrameCode* frame = animation->frame(index);
        return frame && frame->sprite() == shown;
    };
    if (!animation || !shown) {
        return -1;
    }
    if (shows(m_animations->frameIndex())) {
        return m_animations->frameIndex();
    }
    int index = 0;
    while (index < animation->frameCount() && !shows(index)) {
        ++index;
    }
    return index < animation->frameCount() ? index : -1;
}

void FrameShine::update()
{
    std::vector<ImageRenderer::Skin> skins;
    ImageRenderer* renderer = m_sprites->renderer();
    if (!m_isOn && !m_isShown) {
        return;
    }
    const int index = m_isOn ? frameOfCanvas() : -1;
    bool isPossible = false;
    const Zorv::AnimationCode* animation = m_animations->currentAnimation();
    const QTransform toCanvas =
        index < 0
            ? QTransform()
            : placeOf(*animation->frame(index), renderer->canvas()->axis()).inverted(&isPossible);
    for (const int other : {index - 1, index + 1}) {
        const FrameCode* frame = isPossible && other >= 0 && other < animation->frameCount()
                                     ? animation->frame(other)
                                     : nullptr;
        const Sprite* sprite = frame ? frame->sprite() : nullptr;
        if (!sprite) {
            continue;
        }
        const QTransform place = placeOf(*frame, sprite->axis()) * toCanvas;
        const QRectF area = place.mapRect(QRectF(QPointF(), sprite->size()));
        const bool isSeen = area.intersects(QRectF(QPointF(), renderer->canvas()->size()));
        if (isSeen && area.width() <= LargestSide && area.height() <= LargestSide) {
            const QImage image = sprite->image().convertToFormat(QImage::Format_ARGB32);
            skins.push_back({image.transformed(place), area.topLeft().toPoint(), Opacity});
        }
    }
    m_isShown = !skins.empty();
    renderer->setSkins(skins);
}

}  // namespace App
