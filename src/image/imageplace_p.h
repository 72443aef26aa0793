#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

namespace Zorv {

/// Offset of the picture, as a fraction of a screen pixel. Where the edge of a picture pixel falls
/// on the middle of a screen pixel, GL may draw either side. The same offset is applied to pointer
/// positions, so they hit the pixel that is drawn.
constexpr double DrawingShift = 1.0 / 64;

/// One of the two views.
enum class ImageView { Original, Zoomed };

/// The geometry of a picture in its views.
struct ImagePlace
{
    QSize widget = QSize(0, 0);
    bool showOriginal = true;
    bool showZoomed = true;
    bool followOriginal = false;
    QPoint position;  ///< where the middle of the picture is, in each view
    double zoom = 1;
    QSize size = QSize(0, 0);  ///< of the picture

    bool isShown(ImageView view) const;
    bool isSplit() const { return showOriginal && showZoomed; }
    int splitX() const { return isSplit() ? widget.width() / 2 : widget.width(); }

    /// The middle of the picture in canvas pixels, rounded down.
    QPoint center() const { return {size.width() / 2, size.height() / 2}; }

    /// The middle of a view, relative to the view.
    QPoint middle() const { return {splitX() / 2, widget.height() / 2}; }

    /// The picture, relative to the left of the view.
    QRect rect(ImageView view) const;

    /// The rectangle of a view in the widget.
    QRect viewRect(ImageView view) const;
    double scale(ImageView view) const { return view == ImageView::Zoomed ? zoom : 1.0; }

    /// The top left corner of the picture in the widget.
    QPoint corner(ImageView view) const;

    QPointF toCanvas(const QPointF& pos, ImageView view) const;
    QPointF toWidget(const QPointF& point, ImageView view) const;

    ImageView viewAt(const QPointF& pos) const;

    /// The position at which the point of the zoomed view under `fixed` stays there at the new
    /// zoom.
    QPoint positionFor(double newZoom, const QPointF& fixed) const;

private:
    QPoint followingCorner() const;
};

/// Rounds and limits a position: far enough for all pictures, but a few can be added without
/// overflow.
QPoint savePosition(const QPointF& position);

/// The pixel that contains a point.
QPoint pixelOf(const QPointF& point);

}  // namespace Zorv
