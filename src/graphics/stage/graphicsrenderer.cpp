#include "graphics/stage/graphicsrenderer.h"

#include "cache/spriteprovider.h"
#include "graphics/stage/graphicsrenderer_p.h"

namespace Zorv {

GraphicsRenderer::GraphicsRenderer(QObject* parent)
    : QObject(parent), d(std::make_unique<GraphicsRendererPrivate>(this))
{
}

GraphicsRenderer::~GraphicsRenderer() = default;

void GraphicsRenderer::setVisibility(bool, bool, bool, bool, bool, bool, bool) {}

void GraphicsRenderer::setPriority(bool, bool) {}

bool GraphicsRenderer::spriteOverGuides() const
{
    return false;
}

bool GraphicsRenderer::contactOverCross() const
{
    return false;
}

void GraphicsRenderer::setBackground(QColor, QColor, BackgroundType, QPoint, const QString&, QSize)
{
}

void GraphicsRenderer::setCrossHair(CrossHairType, const QString&, const QString&, const QString&)
{
}

QPoint GraphicsRenderer::origin() const
{
    return QPoint{};
}

void GraphicsRenderer::setOrigin(QPoint) {}

void GraphicsRenderer::centralize() {}

QPoint GraphicsRenderer::guideLines() const
{
    return QPoint{};
}

void GraphicsRenderer::setGuideLines(QPoint) {}

void GraphicsRenderer::setSprites(SpriteProvider*) {}

SpriteProvider* GraphicsRenderer::spriteProvider() const
{
    return nullptr;
}

void GraphicsRenderer::setupContactBoxes(QColor, QColor, float) {}

void GraphicsRenderer::setContactBoxes(ContactBoxCode::BoxType, ContactBoxesCode*) {}

ContactBoxesCode* GraphicsRenderer::boxes(ContactBoxCode::BoxType) const
{
    return nullptr;
}

void GraphicsRenderer::setOnionSkin(bool, OnionEffect, float) {}

void GraphicsRenderer::setOnionSkinSprite(const Sprite*, QPoint) {}

void GraphicsRenderer::setZoomMode(ZoomMode) {}

void GraphicsRenderer::setZoomTable(unsigned char) {}

void GraphicsRenderer::setZoomLevel(unsigned char) {}

float GraphicsRenderer::zoom() const
{
    return 1;
}

void GraphicsRenderer::addZoom() {}

void GraphicsRenderer::subZoom() {}

void GraphicsRenderer::zoomActual() {}

int GraphicsRenderer::indexOfItem(ItemType, void*) const
{
    return 0;
}

QPoint GraphicsRenderer::itemPosition(ItemType, unsigned int) const
{
    return QPoint{};
}

void GraphicsRenderer::setItemPosition(ItemType, QPoint, unsigned int) {}

void GraphicsRenderer::setItemPositionMode(ItemType, unsigned char, unsigned int, unsigned int) {}

void GraphicsRenderer::mouseWheel(int) {}

void GraphicsRenderer::sizeChanged(int, int) {}

void GraphicsRenderer::render(QPainter&) {}

void GraphicsRenderer::spriteChangedAt(unsigned int) {}

void GraphicsRenderer::spritesChanged() {}

void GraphicsRenderer::renderSprite(QPoint, QPoint, QSize, float, unsigned char, Sprite*,
                                    unsigned int)
{
}

void GraphicsRenderer::renderOnionSkinSprite(const Sprite*, QPoint, QPoint, QSize, float,
                                             OnionEffect)
{
}

}  // namespace Zorv
