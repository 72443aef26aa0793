#include "image/canvas/imagelayers.h"
#include "image/imagerenderer_p.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

const double SmallestGridZoom = 4;
const QColor GridColor(128, 128, 128, 120);

/// With whole scale factors pixel edges coincide, so no offset is needed.
QPointF drawingCorner(const QPainter& painter, const QPoint& corner, double scale)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const bool isWhole = scale == std::floor(scale) && ratio == std::floor(ratio);
    const double shift = isWhole ? 0 : DrawingShift / ratio;
    return corner + QPointF(shift, shift);
}

}  // namespace

void drawOutline(QPainter& painter, const QRect& rect, const QColor& color)
{
    painter.fillRect(rect.left() - 1, rect.top() - 1, rect.width() + 2, 1, color);
    painter.fillRect(rect.left() - 1, rect.bottom() + 1, rect.width() + 2, 1, color);
    painter.fillRect(rect.left() - 1, rect.top(), 1, rect.height(), color);
    painter.fillRect(rect.right() + 1, rect.top(), 1, rect.height(), color);
}

void ImageRenderer::render(QPainter& painter)
{
    QLinearGradient ground(0, 0, 0, d->views.widget.height());
    ground.setColorAt(0, d->topColor);
    ground.setColorAt(1, d->bottomColor);
    painter.fillRect(QRect(QPoint(), d->views.widget), ground);
    if (d->canvas.layers()->count() == 0) {
        return;
    }
    for (const ImageView view : {ImageView::Original, ImageView::Zoomed}) {
        if (d->views.isShown(view)) {
            d->draw(painter, view);
        }
    }
    d->tiles.trim();
}

void ImageRendererPrivate::draw(QPainter& painter, ImageView view)
{
    const ImagePlace now = place();
    const QRect inView = now.viewRect(view);
    const QRect picture = now.rect(view).translated(inView.topLeft());
    const QRect shownPart = picture & inView;
    painter.save();
    // Drawn before the picture, which covers some of its screen pixels at some scales.
    painter.setClipRect(inView);
    drawOutline(painter, picture, Qt::black);
    if (!shownPart.isEmpty()) {
        painter.setClipRect(shownPart);
        const double scale = now.scale(view);
        const QRectF part(now.toCanvas(shownPart.topLeft(), view),
                          QSizeF(shownPart.size()) / scale);
        tiles.draw(painter, drawingCorner(painter, picture.topLeft(), scale), scale,
                   part.toAlignedRect(),
                   changeDepth == 0 ? PictureTiles::Refreshed : PictureTiles::AsTheyAre);
        if (view == ImageView::Zoomed && q->option(ImageRenderer::PixelGrid)) {
            drawGrid(painter, shownPart);
        }
    }
    painter.setClipRect(inView);
    drawCanvasAxis(painter, view);
    drawAxes(painter, view);
    drawCell(painter, view);
    drawToolCursor(painter, view);
    painter.restore();
}

void ImageRendererPrivate::drawGrid(QPainter& painter, const QRect& shownPart) const
{
    const ImagePlace now = place();
    if (now.zoom < SmallestGridZoom) {
        return;
    }
    const QPointF from = now.toCanvas(shownPart.topLeft(), ImageView::Zoomed);
    const QPointF to = now.toCanvas(shownPart.bottomRight(), ImageView::Zoomed);
    const QPoint corner = now.corner(ImageView::Zoomed);
    // One path for all lines, because each path is one draw call.
    QPainterPath lines;
    for (int x = std::max(int(std::ceil(from.x())), 1); x <= to.x(); ++x) {
        const double left = corner.x() + qRound(x * now.zoom) + 0.5;
        lines.moveTo(left, shownPart.top());
        lines.lineTo(left, shownPart.bottom() + 1);
    }
    for (int y = std::max(int(std::ceil(from.y())), 1); y <= to.y(); ++y) {
        const double top = corner.y() + qRound(y * now.zoom) + 0.5;
        lines.moveTo(shownPart.left(), top);
        lines.lineTo(shownPart.right() + 1, top);
    }
    painter.strokePath(lines, QPen(GridColor, 1));
}

void ImageRendererPrivate::drawCell(QPainter& painter, ImageView view) const
{
    if (!isCellShown) {
        return;
    }
    const ImagePlace now = place();
    const QPoint corner = savePosition(now.toWidget(cell, view));
    const int side = std::max(qRound(now.scale(view)), 1);
    const QRect rect(corner, QSize(side, side));
    drawOutline(painter, rect, Qt::white);
    drawOutline(painter, rect.adjusted(-1, -1, 1, 1), Qt::black);
}

/// The middle of the square that a centred brush would paint; otherwise the pointer.
QPoint ImageRendererPrivate::cursorPlace(ImageView view) const
{
    const bool isCentered = q->option(ImageRenderer::CenteredBrush);
    if (!isCellShown && !isCentered) {
        return mousePos;
    }
    const ImageView at = isCellShown ? view : pressed ? pressView : place().viewAt(mousePos);
    if (at != view) {
        return mousePos;
    }
    const QPoint pixel = isCellShown ? toolPixel(cell) : toolPixel(exactPlace(mousePos), at);
    const double half = isCentered ? current->brushWidth() / 2.0 : 0.5;
    return pixelOf(place().toWidget(QPointF(pixel) + QPointF(half, half), at));
}

void ImageRendererPrivate::drawToolCursor(QPainter& painter, ImageView view)
{
    const bool paints = current && !isSpaceHeld && !isPanning;
    if (paints && (isCellShown || !isOutside)) {
        current->renderCursor(painter, cursorPlace(view), place().scale(view));
    }
}

}  // namespace Zorv
