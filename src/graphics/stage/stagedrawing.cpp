#include "cache/palette.h"
#include "cache/sprite.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

#include <QMatrix4x4>
#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

const QColor s_guideColor(0, 255, 255);

float asFloat(int number)
{
    return static_cast<float>(number);
}

void blendByAlpha(Renderer& renderer)
{
    renderer.glSetBlend(true);
    renderer.glSetBlendEquation(Renderer::Add);
    renderer.glSetBlendFunction(Renderer::SourceAlpha, Renderer::OneMinusSourceAlpha);
}

Texture* paletteOf(const Sprite& sprite)
{
    const Palette* palette = sprite.palette();
    return palette ? palette->texture() : nullptr;
}

void translate(QMatrix4x4& matrix, QPoint by)
{
    matrix.translate(asFloat(by.x()), asFloat(by.y()));
}

/// Scales the unit square to a size.
void scale(QMatrix4x4& matrix, QSize size)
{
    matrix.scale(asFloat(size.width()), asFloat(size.height()));
}

}  // namespace

void GraphicsRenderer::render(QPainter& painter)
{
    d->renderBackground(painter);
    if (spriteOverGuides()) {
        d->renderGuides(painter);
    }
    painter.beginNativePainting();
    glBeginTextureDrawing();
    d->renderOnionSkin();
    d->renderSprites(0);
    glEndTextureDrawing();
    painter.endNativePainting();

    if (contactOverCross()) {
        d->renderCross(painter);
    }
    d->renderContactBoxes(painter, ContactBoxCode::Collision, {}, {});
    d->renderContactBoxes(painter, ContactBoxCode::Attack, {}, {});
    d->renderContactBoxSizers(painter);
    if (!contactOverCross()) {
        d->renderCross(painter);
    }
    if (!spriteOverGuides()) {
        d->renderGuides(painter);
    }
    d->renderRulers(painter);
}

void GraphicsRenderer::renderSprite(QPoint base, QPoint offset, QSize size, float rotation,
                                    unsigned char flip, Sprite* sprite, unsigned int)
{
    drawSprite(spriteMatrix(base, offset, size, rotation), sprite, flip, 1.0F, NoEffect);
}

QMatrix4x4 GraphicsRenderer::spriteMatrix(QPoint base, QPoint offset, QSize size,
                                          float rotation) const
{
    QMatrix4x4 matrix;
    translate(matrix, base);
    matrix.rotate(rotation, 0, 0, 1);
    translate(matrix, offset);
    scale(matrix, size);
    return matrix;
}

void GraphicsRenderer::renderOnionSkinSprite(const Sprite* sprite, QPoint base, QPoint offset,
                                             QSize size, float opacity, OnionEffect effect)
{
    drawSprite(spriteMatrix(base + offset, {}, size, 0), sprite, 0, opacity, effect);
}

void GraphicsRenderer::drawSprite(const QMatrix4x4& matrix, const Sprite* sprite,
                                  unsigned char flip, float opacity, OnionEffect effect)
{
    Texture* const image = sprite ? sprite->texture() : nullptr;
    if (image) {
        blendByAlpha(*this);
        glDrawImage(matrix, image, paletteOf(*sprite), flip, opacity, true,
                    static_cast<unsigned char>(effect));
    }
}

int GraphicsRendererPrivate::lineThickness() const
{
    return qRound(std::max(zoom, 1.0F));
}

void GraphicsRendererPrivate::renderSprites(int layer)
{
    // By index and with a copy, because drawing a sprite may change the list.
    for (int index = 0; index < spriteItems.size(); ++index) {
        const SpriteItem item = spriteItems.at(index);
        if (item.layer != layer) {
            continue;
        }
        const auto number = static_cast<unsigned>(index);
        const QPoint base = anchorOfItem(GraphicsRenderer::SpriteType, number);
        q->renderSprite(base, spriteOffset(item), spriteSize(item), item.rotation, item.flip,
                        item.sprite, number);
    }
}

/// Uses the same calculation and rounding as for sprites, so that a skin covers its sprite exactly.
void GraphicsRendererPrivate::renderSkin(const OnionSkin& skin)
{
    Texture* const image = skin.sprite ? skin.sprite->texture() : nullptr;
    if (!image) {
        return;
    }
    SpriteItem item;
    item.mode = CrossAnchor;
    item.position = skin.position;
    item.size = skin.size;
    item.scale = skin.scale;
    const QPoint base = stageSum(calcPos(GraphicsRenderer::MainCross, 0), scaled(skin.axis));
    const QMatrix4x4 matrix =
        q->spriteMatrix(base, spriteOffset(item), spriteSize(item), skin.rotation);
    const float opacity = onionOpacity * skin.opacity;
    if (skin.color.isValid()) {
        blendByAlpha(*q);
        q->glDrawTinted(matrix, image, paletteOf(*skin.sprite), skin.flip, opacity, skin.color);
    } else {
        q->drawSprite(matrix, skin.sprite, skin.flip, opacity, onionEffect);
    }
}

void GraphicsRendererPrivate::renderOnionSkin()
{
    if (!onionEnabled) {
        return;
    }
    for (const OnionSkin& skin : qAsConst(onionSkins)) {
        renderSkin(skin);
    }
    if (!onionSprite) {
        return;
    }
    const QPoint base = anchorOfItem(GraphicsRenderer::MainCross, 0);
    const QPoint offset(scaled(stageInt(-qint64(onionOffset.x()))),
                        scaled(stageInt(-qint64(onionOffset.y()))));
    const QSize image = onionSprite->size();
    q->renderOnionSkinSprite(onionSprite, base, offset,
                             QSize(scaled(image.width()), scaled(image.height())), onionOpacity,
                             onionEffect);
}

void GraphicsRendererPrivate::renderCross(QPainter& painter)
{
    const int factor = lineThickness();
    for (const auto type : {Cross::Main, Cross::Secondary, Cross::Extra}) {
        const QPixmap& image = crossImage(type);
        if (!crosses[type].visible || image.isNull()) {
            continue;
        }
        const QSize size = image.size() * factor;
        const QPoint middle = calcPos(static_cast<ItemType>(type), 0);
        const QRect place(middle - QPoint(size.width() / 2, size.height() / 2), size);
        if (place.intersects(visibleRect())) {
            painter.drawPixmap(place, image, image.rect());
        }
    }
}

void GraphicsRendererPrivate::renderGuides(QPainter& painter)
{
    if (!guidesVisible) {
        return;
    }
    const auto line = [this](int guide, int origin) {
        return stageInt(qint64(truncatedInt(static_cast<float>(guide) * zoom)) + origin);
    };
    const int x = line(guideLines.x(), m_origin.x());
    const int y = line(guideLines.y(), m_origin.y());
    const int thickness = lineThickness();
    painter.fillRect(QRect(0, y, widgetSize.width(), thickness) & visibleRect(), s_guideColor);
    painter.fillRect(QRect(x, 0, thickness, widgetSize.height()) & visibleRect(), s_guideColor);
}

}  // namespace Zorv
