// Zoom levels, and what a change of the zoom moves.
//
// Items relative to the origin, a cross or a sprite follow the zoom by themselves. Items in widget
// pixels are moved here: their distance from the fixed point, the middle of the widget or the
// origin, is divided by the previous zoom and multiplied by the new one.

#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

#include <algorithm>

namespace Zorv {

namespace {

constexpr int HighestLevel = ZoomLevels - 1;
constexpr int HighestLevelOfWheel = 9;
constexpr int LowestLevelByNumber = 255;
constexpr int WheelStep = 120;

}  // namespace

void GraphicsRenderer::setZoomMode(ZoomMode mode)
{
    Zoom::mode = mode;
}

void GraphicsRenderer::setZoomTable(unsigned char table)
{
    Zoom::table = table == 0 ? 0 : 1;
}

void GraphicsRenderer::setZoomLevel(unsigned char level)
{
    d->applyZoomLevel(level == LowestLevelByNumber ? 0 : std::min<int>(level, HighestLevel));
}

unsigned char GraphicsRenderer::zoomLevel() const
{
    return d->zoomLevel;
}

float GraphicsRenderer::zoom() const
{
    return d->zoom;
}

void GraphicsRenderer::addZoom()
{
    d->applyZoomLevel(std::min(d->zoomLevel + 1, HighestLevel));
}

void GraphicsRenderer::subZoom()
{
    d->applyZoomLevel(std::max(d->zoomLevel - 1, 0));
}

void GraphicsRenderer::zoomActual()
{
    d->applyZoomLevel(s_zoomActual[Zoom::table]);
}

// The wheel stops below the highest levels, which only the keys reach. From there the wheel goes
// back to its own maximum.
void GraphicsRenderer::mouseWheel(int delta)
{
    const int level = d->zoomLevel + delta / WheelStep;
    d->applyZoomLevel(std::clamp(level, 0, HighestLevelOfWheel));
}

void GraphicsRendererPrivate::applyZoomLevel(int level)
{
    const bool isOther = level != zoomLevel || s_zoomTable[Zoom::table][level] != zoom;
    zoomLevel = static_cast<unsigned char>(level);
    zoom = s_zoomTable[Zoom::table][level];
    zoomChanged();
    previousZoom = zoom;
    q->update();
    if (isOther) {
        clicked = {};
        emit q->viewChanged();
    }
}

void GraphicsRendererPrivate::zoomChanged()
{
    const QPoint center = Zoom::mode != GraphicsRenderer::ZoomAboutCenter ? m_origin : widgetCentre;
    const auto about = [this](int position, int middle) {
        const float distance = static_cast<float>(qint64(position) - middle) / previousZoom;
        return stageInt(qint64(middle) + stageLength(roundedInt(distance), zoom));
    };
    const auto move = [&](auto& item) {
        if (positionMode(item.mode) == AbsoluteAnchor) {
            item.position = {about(item.position.x(), center.x()),
                             about(item.position.y(), center.y())};
        }
    };
    std::for_each(crosses.begin(), crosses.end(), move);
    std::for_each(spriteItems.begin(), spriteItems.end(), move);
    if (positionMode(contactMode) != AbsoluteAnchor) {
        return;
    }
    for (ContactBoxes& boxes : contactBoxes) {
        for (ContactItem& item : boxes.items) {
            item.x = (item.x - center.x()) / previousZoom * zoom + center.x();
            item.y = (item.y - center.y()) / previousZoom * zoom + center.y();
        }
    }
}

}  // namespace Zorv
