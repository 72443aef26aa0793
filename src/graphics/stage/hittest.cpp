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

/// The square of a sizer: from its centre so far to the left and the top, and one less to the
/// right and the bottom.
constexpr int SizerReach = 6;

bool isInRuler(int place)
{
    return place >= 0 && place < RulerWidth;
}

bool isBetween(double place, double a, double b)
{
    return place >= std::min(a, b) && place < std::max(a, b);
}

/// What is far from a point, found without the places of its edges on the stage: they lie within
/// two of its pixels of where they would lie without rounding.
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
    double m_x;  // twice the point, in model units
    double m_y;
    double m_slack;
};

}  // namespace

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTest(QPoint pos)
{
    if (isInRuler(pos.x()) || isInRuler(pos.y())) {
        return GraphicsRenderer::StageElement;
    }
    RenderElement found = m_sprOverGuides ? GraphicsRenderer::StageElement : hitTestGuides(pos);
    if (found != GraphicsRenderer::StageElement ||
        clickMode == GraphicsRenderer::DrawContactBoxMode) {
        return found;
    }
    if (clickMode != GraphicsRenderer::CaptureMode) {
        found = hitTestBoxesAndCrosses(pos);
    }
    if (found == GraphicsRenderer::StageElement) {
        found = hitTestSprites(pos);
    }
    if (found == GraphicsRenderer::StageElement && m_sprOverGuides) {
        found = hitTestGuides(pos);
    }
    return found;
}

// A guide is caught some pixels around, and no wider however far it is zoomed.
GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTestGuides(QPoint pos) const
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

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTestBoxesAndCrosses(QPoint pos)
{
    RenderElement found = m_contactOverCross ? hitTestContact(pos) : GraphicsRenderer::StageElement;
    for (int number = Cross::Extra; number >= Cross::Main; --number) {
        if (found == GraphicsRenderer::StageElement) {
            found = hitTestCross(number, pos);
        }
    }
    return found == GraphicsRenderer::StageElement && !m_contactOverCross ? hitTestContact(pos)
                                                                          : found;
}

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTestCross(int number, QPoint pos)
{
    const Cross& cross = crosses[size_t(number)];
    if (!cross.visible || !crossRect(number).contains(pos)) {
        return GraphicsRenderer::StageElement;
    }
    auto found = RenderElement(GraphicsRenderer::MainCrossElement + number);
    if (!isMovable(cross.mode)) {
        replaceByParent(cross.mode, cross.parent, &found);
    }
    return found;
}

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTestContact(QPoint pos)
{
    for (int sizer = GraphicsRenderer::TopLeftSizer;
         hasSelection && sizer <= GraphicsRenderer::RightSizer; ++sizer) {
        const QPoint centre = sizerFromSelection(RenderElement(sizer));
        if (QRect(centre - QPoint(SizerReach, SizerReach), QSize(2 * SizerReach, 2 * SizerReach))
                .contains(pos)) {
            return RenderElement(sizer);
        }
    }
    if (!hitTestBoxes(pos)) {
        return GraphicsRenderer::StageElement;
    }
    RenderElement found = GraphicsRenderer::ContactBoxElement;
    if (!isMovable(contactMode)) {
        replaceByParent(contactMode, contactParent, &found);
    }
    return found;
}

bool GraphicsRendererPrivate::hitTestBoxes(QPoint pos)
{
    const QPoint anchor = anchorOf(contactMode, contactParent);
    const FarBoxes far(pos, anchor, zoom);
    for (int list = BoxTypes - 1; list >= 0; --list) {
        const ContactBoxes& boxes = contactBoxes[size_t(list)];
        if (!boxes.visible) {
            continue;
        }
        for (int i = boxes.items.size() - 1; i >= 0; --i) {
            const ContactItem& item = boxes.items.at(i);
            if (!far.holds(item) && contactRect(item, anchor).contains(pos)) {
                boxListIndex = list;
                itemIndex = i;
                return true;
            }
        }
    }
    return false;
}

GraphicsRenderer::RenderElement GraphicsRendererPrivate::hitTestSprites(QPoint pos)
{
    for (int i = spriteItems.size() - 1; i >= 0; --i) {
        if (!spriteCovers(i, pos)) {
            continue;
        }
        itemIndex = i;
        const SpriteItem& item = spriteItems.at(i);
        RenderElement found = GraphicsRenderer::SpriteElement;
        // A colour is that of the picture, whatever would move with it.
        if (clickMode != GraphicsRenderer::CaptureMode && !isMovable(item.mode)) {
            replaceByParent(item.mode, item.parent, &found);
        }
        if (found != GraphicsRenderer::StageElement) {
            return found;
        }
    }
    return GraphicsRenderer::StageElement;
}

// Turns the middle of the pixel back about the anchor, and looks where it lies on the picture,
// which a negative scale has on the other side of its position.
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
