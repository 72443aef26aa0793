#include "app/paint/frameshine.h"

#include <zorv/animation/animationeditor.h>
#include <zorv/cache/sprite.h>
#include <zorv/cache/sprites.h>
#include <zorv/code/codedoc/animationcode.h>
#include <zorv/code/codedoc/framecode.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>

// Coordinates go from a neighbour's pixels to its axis, by its frame into the game, and by the
// inverse of the canvas frame back to the pixels of the canvas. Rotating and scaling a picture is
// the expensive part and does not depend on the axis of the canvas. It is done once per neighbour;
// when the axis moves, only the position of the result changes.

namespace App {

using Zorv::FrameCode;
using Zorv::ImageRenderer;
using Zorv::Sprite;

namespace {

constexpr double Opacity = 0.35;
constexpr double LargestSide = 8192;  // limit for a scaled frame, in pixels

/// The transform from a picture's axis to game coordinates, as a frame shows it.
QTransform placeOf(const FrameCode& frame)
{
    const bool isLeft = frame.flip() & FrameCode::FlipHorizontally;
    const bool isUp = frame.flip() & FrameCode::FlipVertically;
    QTransform place;
    place.translate(frame.offset().x(), frame.offset().y());
    place.rotate(-frame.angle());
    place.scale(frame.scale().x() * (isLeft ? -1 : 1), frame.scale().y() * (isUp ? -1 : 1));
    return place;
}

/// The transform from picture pixels to coordinates relative to the axis.
QTransform toAxis(QPoint axis)
{
    return QTransform::fromTranslate(-double(axis.x()), -double(axis.y()));
}

}  // namespace

FrameShine::FrameShine(Zorv::SpriteEditor* sprites, const Zorv::AnimationEditor* animations,
                       QObject* parent)
    : QObject(parent), m_sprites(sprites), m_animations(animations)
{
    const Zorv::ImageCanvas* canvas = sprites->renderer()->canvas();
    connect(sprites, &Zorv::SpriteEditor::spriteShown, this, &FrameShine::followSprite);
    connect(canvas, &Zorv::ImageCanvas::axisChanged, this, &FrameShine::place);
    connect(canvas, &Zorv::ImageCanvas::sizeChanged, this, &FrameShine::place);
}

/// Follows the file, because pictures and axes of the neighbours can change there.
void FrameShine::followSprite()
{
    if (m_followed != m_sprites->sprites()) {
        if (m_followed) {
            m_followed->disconnect(this);
        }
        m_followed = m_sprites->sprites();
        if (m_followed) {
            connect(m_followed, &Zorv::Sprites::changed, this, &FrameShine::update);
        }
    }
    update();
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
    if (!m_isOn && m_neighbours.empty()) {
        return;
    }
    m_neighbours.clear();
    const int index = m_isOn ? frameOfCanvas() : -1;
    if (index >= 0) {
        const Zorv::AnimationCode* animation = m_animations->currentAnimation();
        m_own = placeOf(*animation->frame(index));
        for (const int other : {index - 1, index + 1}) {
            if (other >= 0 && other < animation->frameCount()) {
                add(animation->frame(other));
            }
        }
    }
    place();
}

void FrameShine::add(const FrameCode* frame)
{
    const Sprite* sprite = frame ? frame->sprite() : nullptr;
    if (sprite) {
        m_neighbours.push_back({sprite->image(), toAxis(sprite->axis()) * placeOf(*frame), {}});
    }
}

void FrameShine::place()
{
    std::vector<ImageRenderer::Skin> skins;
    ImageRenderer* renderer = m_sprites->renderer();
    const Zorv::ImageCanvas* canvas = renderer->canvas();
    bool isPossible = false;
    const QTransform toCanvas = (toAxis(canvas->axis()) * m_own).inverted(&isPossible);
    for (Neighbour& each : m_neighbours) {
        const QTransform place = each.toGame * toCanvas;
        const QRectF area = place.mapRect(QRectF(each.image.rect()));
        const bool isSeen = isPossible && area.intersects(QRectF(QPointF(), canvas->size()));
        if (isSeen && area.width() <= LargestSide && area.height() <= LargestSide) {
            if (each.shown.isNull()) {
                each.shown = each.image.convertToFormat(QImage::Format_ARGB32).transformed(place);
            }
            skins.push_back({each.shown, area.topLeft().toPoint(), Opacity});
        }
    }
    if (m_isShown || !skins.empty()) {
        m_isShown = !skins.empty();
        renderer->setSkins(skins);
    }
}

}  // namespace App
