// From an item's position to the stage.
//
// The position of an item is relative to its anchor: the widget, the origin, a cross or a sprite.
// Crosses and sprites have anchors of their own, so the place on the stage is a sum along a chain
// of parents, up to the origin or the widget. Each part is zoomed and rounded by itself.
//
// A host can build a loop of parents. Every walk therefore has a number that is stored in each item
// it visits. An item that already has the number closes a loop, and the walk ends. No list of
// visited items is needed.

#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

namespace Zorv {

/// What the position of a cross or sprite depends on.
struct GraphicsRendererPrivate::Place
{
    QPoint position;
    unsigned char mode = AbsoluteAnchor;
    unsigned parent = 0;
    quint64* walk = nullptr;  // null if there is no such item
};

int GraphicsRendererPrivate::scaled(int length) const
{
    return stageLength(length, zoom);
}

QPoint GraphicsRendererPrivate::scaled(QPoint point) const
{
    return {stageLength(point.x(), zoom), stageLength(point.y(), zoom)};
}

GraphicsRendererPrivate::Place GraphicsRendererPrivate::placeOf(ItemType type, unsigned index)
{
    if (type == GraphicsRenderer::SpriteType) {
        if (index >= unsigned(spriteItems.size())) {
            return {};
        }
        SpriteItem& item = spriteItems[int(index)];
        return {scaledPoint(item.position, item.scale), item.mode, item.parent, &item.walk};
    }
    if (unsigned(type) >= crosses.size()) {
        return {};
    }
    Cross& cross = crosses[unsigned(type)];
    return {cross.position, cross.mode, cross.parent, &cross.walk};
}

QPoint GraphicsRendererPrivate::ownPart(const Place& place) const
{
    return positionMode(place.mode) == AbsoluteAnchor ? place.position : scaled(place.position);
}

QPoint GraphicsRendererPrivate::alongParents(unsigned char mode, unsigned parent)
{
    QPoint sum;
    for (;;) {
        const int anchor = positionMode(mode);
        if (anchor == OriginAnchor) {
            return stageSum(sum, m_origin);
        }
        if (anchor != CrossAnchor && anchor != SpriteAnchor) {
            return sum;
        }
        const Place place = anchor == SpriteAnchor ? placeOf(GraphicsRenderer::SpriteType, parent)
                            : parent < crosses.size() ? placeOf(ItemType(parent), 0)
                                                      : Place{};
        if (!place.walk) {
            return sum;
        }
        // A parent visited twice ends the chain, as if it were relative to nothing.
        if (*place.walk == walks) {
            return stageSum(sum, place.position);
        }
        *place.walk = walks;
        sum = stageSum(sum, ownPart(place));
        mode = place.mode;
        parent = place.parent;
    }
}

StageHit GraphicsRendererPrivate::parentOf(unsigned char mode, unsigned parent) const
{
    const int anchor = positionMode(mode);
    if (anchor == CrossAnchor && parent < crosses.size()) {
        return {RenderElement(GraphicsRenderer::MainCrossElement + parent)};
    }
    if (anchor == SpriteAnchor && parent < unsigned(spriteItems.size())) {
        return {GraphicsRenderer::SpriteElement, int(parent)};
    }
    return {};
}

void GraphicsRendererPrivate::replaceByParent(unsigned char mode, unsigned parent,
                                              RenderElement* out)
{
    if (out) {
        *out = take(parentOf(mode, parent));
    }
}

QPoint GraphicsRendererPrivate::posFromMode(unsigned char mode, QPoint position, unsigned parent,
                                            RenderElement* out)
{
    replaceByParent(mode, parent, out);
    ++walks;
    return stageSum(position, alongParents(mode, parent));
}

QPoint GraphicsRendererPrivate::anchorOf(unsigned char mode, unsigned parent, RenderElement* out)
{
    return posFromMode(mode, {}, parent, out);
}

QPoint GraphicsRendererPrivate::anchorOfItem(ItemType type, unsigned index, RenderElement* out)
{
    const Place place = placeOf(type, index);
    replaceByParent(place.mode, place.parent, out);
    ++walks;
    if (place.walk) {
        *place.walk = walks;
    }
    return alongParents(place.mode, place.parent);
}

QPoint GraphicsRendererPrivate::calcPos(ItemType type, unsigned index, RenderElement* out)
{
    return stageSum(ownPart(placeOf(type, index)), anchorOfItem(type, index, out));
}

QPoint GraphicsRendererPrivate::spriteOffset(const SpriteItem& item) const
{
    const QPoint offset = scaledPoint(item.position, item.scale);
    return positionMode(item.mode) == AbsoluteAnchor ? offset : scaled(offset);
}

QSize GraphicsRendererPrivate::spriteSize(const SpriteItem& item) const
{
    return {scaled(scaledLength(item.size.width(), item.scale.x())),
            scaled(scaledLength(item.size.height(), item.scale.y()))};
}

QRect GraphicsRendererPrivate::crossRect(int number, RenderElement* out)
{
    const auto type = static_cast<ItemType>(number);
    const QSize image = crossImage(static_cast<Cross::Type>(number)).size();
    const QSize size(scaled(image.width()), scaled(image.height()));
    const QPoint middle = calcPos(type, 0, out);
    return {middle - QPoint(size.width() / 2, size.height() / 2), size};
}

QRect GraphicsRendererPrivate::contactRect(const ContactItem& item, QPoint anchor) const
{
    const int left = stageInt(qint64(roundedInt(item.x * zoom)) + anchor.x());
    const int top = stageInt(qint64(roundedInt(item.y * zoom)) + anchor.y());
    return {QPoint(left, top), QPoint(left - 1 + stageInt(roundedInt(item.width * zoom)),
                                      top - 1 + stageInt(roundedInt(item.height * zoom)))};
}

}  // namespace Zorv
