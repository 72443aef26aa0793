// Finds the element under the pointer.
//
// visitHits() walks over everything under a point, from top to bottom, and passes each hit to a
// visitor until one accepts. The order follows the two priorities: guides above or below sprites,
// boxes above or below crosses. The visitor decides the use: the topmost hit accepts the first,
// cycling through overlapping elements collects all of them.
//
// An item that cannot be moved itself is replaced by its parent, since a drag would move that.
// Boxes can be numerous, so FarBoxes rejects most of them in model units before a rectangle on the
// stage is computed.

#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

constexpr int RulerWidth = 30;

/// The size of a sizer's square: this far to the left and top of its centre, and one pixel less to
/// the right and bottom.
constexpr int SizerReach = 6;

/// The hit below `taken`; after the lowest comes the topmost again.
StageHit nextBelow(const QVector<StageHit>& hits, const StageHit& taken)
{
    const int at = hits.indexOf(taken);
    for (int step = 1; step < hits.size(); ++step) {
        const StageHit& hit = hits.at((at + step) % hits.size());
        if (!(hit == taken)) {
            return hit;
        }
    }
    return taken;
}

bool isInRuler(int place)
{
    return place >= 0 && place < RulerWidth;
}

bool isBetween(double place, double a, double b)
{
    return place >= std::min(a, b) && place < std::max(a, b);
}

/// Rejects boxes far from a point without computing their edges on the stage. Rounding moves an
/// edge by less than two stage pixels, which the slack allows for.
class FarBoxes
{
public:
    FarBoxes(QPoint pos, QPoint anchor, float zoom)
        : m_x(2.0 * (double(pos.x()) - anchor.x()) / double(zoom)),
          m_y(2.0 * (double(pos.y()) - anchor.y()) / double(zoom)), m_slack(4.0 / double(zoom))
    {
    }

    bool holds(const ContactItem& item) const
    {
        return std::fabs(2 * item.x + item.width - m_x) - std::fabs(item.width) > m_slack ||
               std::fabs(2 * item.y + item.height - m_y) - std::fabs(item.height) > m_slack;
    }

private:
    double m_x;  // twice the coordinate, in model units
    double m_y;
    double m_slack;
};

}  // namespace

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTest(QPoint pos)
{
    return take(topHit(pos));
}

StageHit GraphicsRendererPrivate::topHit(QPoint pos)
{
    StageHit top;
    visitHits(pos, [&top](const StageHit& hit) {
        top = hit;
        return true;
    });
    return top;
}

GraphicsRenderer::RenderElement GraphicsRendererPrivate::take(const StageHit& hit)
{
    if (hit.element == GraphicsRenderer::ContactBoxElement) {
        boxListIndex = hit.list;
    }
    itemIndex = hit.item < 0 ? itemIndex : hit.item;
    return hit.element;
}

// A press at the place of the last click picks the same element again, so a box that was selected
// by a click can be dragged from there.
StageHit GraphicsRendererPrivate::hitFor(QPoint pos, bool isBeneath)
{
    const bool isAgain = clicked.isAt(pos);
    const StageHit top = isBeneath ? StageHit() : topHit(pos);
    if (!isBeneath && (!isAgain || isSizer(top.element))) {
        return top;
    }
    QVector<StageHit> hits;
    visitHits(pos, [&hits](const StageHit& hit) {
        if (!isSizer(hit.element)) {
            hits.append(hit);
        }
        return false;
    });
    const int last = isAgain ? hits.indexOf(clicked.hit) : 0;
    const StageHit taken = hits.value(qMax(last, 0));
    return isBeneath ? nextBelow(hits, taken) : taken;
}

// Visits all hits from top to bottom until the visitor accepts one.
bool GraphicsRendererPrivate::visitHits(QPoint pos, const HitVisitor& visit)
{
    if (isInRuler(pos.x()) || isInRuler(pos.y())) {
        return false;
    }
    if (!m_sprOverGuides && visitGuides(pos, visit)) {
        return true;
    }
    if (clickMode == GraphicsRenderer::DrawContactBoxMode) {
        return false;
    }
    const bool isCapturing = clickMode == GraphicsRenderer::CaptureMode;
    return (!isCapturing && visitBoxesAndCrosses(pos, visit)) || visitSprites(pos, visit) ||
           (m_sprOverGuides && visitGuides(pos, visit));
}

bool GraphicsRendererPrivate::visitGuides(QPoint pos, const HitVisitor& visit) const
{
    const RenderElement found = guideAt(pos);
    return found != GraphicsRenderer::StageElement && visit({found});
}

// A guide can be grabbed a few pixels around it, and the reach does not grow with the zoom.
GraphicsRenderer::RenderElement GraphicsRendererPrivate::guideAt(QPoint pos) const
{
    if (!guidesVisible) {
        return GraphicsRenderer::StageElement;
    }
    const int reach = qRound(std::min(zoom, 1.0F)) + 2;
    const auto isAt = [&](int guide, int origin, int place) {
        const qint64 start = qint64(scaled(guide)) - 1 + origin;
        return place >= start && place < start + reach;
    };
    if (isAt(guideLines.x(), m_origin.x(), pos.x())) {
        return GraphicsRenderer::VerticalGuide;
    }
    return isAt(guideLines.y(), m_origin.y(), pos.y()) ? GraphicsRenderer::HorizontalGuide
                                                       : GraphicsRenderer::StageElement;
}

bool GraphicsRendererPrivate::visitBoxesAndCrosses(QPoint pos, const HitVisitor& visit)
{
    if (m_contactOverCross && visitContacts(pos, visit)) {
        return true;
    }
    for (int number = Cross::Extra; number >= Cross::Main; --number) {
        if (visitCross(number, pos, visit)) {
            return true;
        }
    }
    return !m_contactOverCross && visitContacts(pos, visit);
}

bool GraphicsRendererPrivate::visitCross(int number, QPoint pos, const HitVisitor& visit)
{
    const Cross& cross = crosses[size_t(number)];
    if (!cross.visible || !crossRect(number).contains(pos)) {
        return false;
    }
    const auto own = RenderElement(GraphicsRenderer::MainCrossElement + number);
    return visitMovable({own}, cross.mode, cross.parent, visit);
}

/// An item that cannot be moved itself is replaced by its parent, and skipped if that is the stage.
bool GraphicsRendererPrivate::visitMovable(StageHit hit, unsigned char mode, unsigned parent,
                                           const HitVisitor& visit)
{
    if (!isMovable(mode)) {
        hit = parentOf(mode, parent);
    }
    return hit.element != GraphicsRenderer::StageElement && visit(hit);
}

bool GraphicsRendererPrivate::visitContacts(QPoint pos, const HitVisitor& visit)
{
    for (int sizer = GraphicsRenderer::TopLeftSizer;
         hasSelection && sizer <= GraphicsRenderer::RightSizer; ++sizer) {
        const QPoint centre = sizerFromSelection(RenderElement(sizer));
        if (QRect(centre - QPoint(SizerReach, SizerReach), QSize(2 * SizerReach, 2 * SizerReach))
                .contains(pos) &&
            visit({RenderElement(sizer)})) {
            return true;
        }
    }
    return visitBoxes(pos, visit);
}

bool GraphicsRendererPrivate::visitBoxes(QPoint pos, const HitVisitor& visit)
{
    const QPoint anchor = anchorOf(contactMode, contactParent);
    const FarBoxes far(pos, anchor, zoom);
    for (int list = BoxTypes - 1; list >= 0; --list) {
        const ContactBoxes& boxes = contactBoxes[size_t(list)];
        if (!boxes.visible || boxes.locked) {
            continue;
        }
        for (int i = boxes.items.size() - 1; i >= 0; --i) {
            const ContactItem& item = boxes.items.at(i);
            if (!far.holds(item) && contactRect(item, anchor).contains(pos) &&
                visitMovable({GraphicsRenderer::ContactBoxElement, i, list}, contactMode,
                             contactParent, visit)) {
                return true;
            }
        }
    }
    return false;
}

bool GraphicsRendererPrivate::visitSprites(QPoint pos, const HitVisitor& visit)
{
    for (int i = spriteItems.size() - 1; i >= 0; --i) {
        if (!spriteCovers(i, pos)) {
            continue;
        }
        const SpriteItem& item = spriteItems.at(i);
        const StageHit hit{GraphicsRenderer::SpriteElement, i};
        // A colour is picked from the sprite itself, even if a drag would move its parent.
        const bool isCapturing = clickMode == GraphicsRenderer::CaptureMode;
        if (isCapturing ? visit(hit) : visitMovable(hit, item.mode, item.parent, visit)) {
            return true;
        }
    }
    return false;
}

// Rotates the middle of the pixel back about the anchor and tests it against the unrotated picture.
// A negative scale mirrors the picture to the other side of its position.
bool GraphicsRendererPrivate::spriteCovers(int index, QPoint pos)
{
    const SpriteItem& item = spriteItems.at(index);
    const QPoint base = anchorOfItem(GraphicsRenderer::SpriteType, unsigned(index));
    const QPoint offset = spriteOffset(item);
    const QSize size = spriteSize(item);
    const double angle = qDegreesToRadians(double(item.rotation));
    const double cosine = item.rotation == 0 ? 1 : std::cos(angle);
    const double sine = item.rotation == 0 ? 0 : std::sin(angle);
    const double dx = pos.x() + 0.5 - base.x();
    const double dy = pos.y() + 0.5 - base.y();
    const double x = dx * cosine + dy * sine - offset.x();
    const double y = dy * cosine - dx * sine - offset.y();
    return isBetween(x, 0, size.width()) && isBetween(y, 0, size.height());
}

QPoint GraphicsRendererPrivate::sizerFromSelection(RenderElement sizer)
{
    const int left = selectionRect.left();
    const int top = selectionRect.top();
    const int right = selectionRect.right();
    const int bottom = selectionRect.bottom();
    const auto middle = [](int low, int high) { return int(low + (qint64(1) - low + high) / 2); };
    const QPoint centres[] = {
        {left, top},
        {middle(left, right), top},
        {left, middle(top, bottom)},
        {right, top},
        {left, bottom},
        {middle(left, right), bottom},
        {right, bottom},
        {right, middle(top, bottom)},
    };
    return stageSum(scaled(centres[sizer - GraphicsRenderer::TopLeftSizer]),
                    anchorOf(contactMode, contactParent));
}

}  // namespace Zorv
