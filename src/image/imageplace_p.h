#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

namespace Zorv {

/// Where the edge of a pixel falls on the middle of one of the screen, GL would draw either side.
/// So the picture is moved by this part of a pixel of the screen, and so is what the pointer is on.
constexpr double DrawingShift = 1.0 / 64;

/// Which of the two views.
enum class ImageView { Original, Zoomed };

/// Where a picture lies in its views.
struct ImagePlace
{
    QSize widget = QSize(0, 0);
    bool showOriginal = true;
    bool showZoomed = true;
    bool followOriginal = false;
    QPoint position;  ///< of the middle of the picture, in each view
    double zoom = 1;
    QSize size = QSize(0, 0);  ///< of the picture

    bool isShown(ImageView view) const;
    bool isSplit() const { return showOriginal && showZoomed; }
    int splitX() const { return isSplit() ? widget.width() / 2 : widget.width(); }

    /// Half of the picture, an odd one rounded down.
    QPoint center() const { return {size.width() / 2, size.height() / 2}; }

    /// The middle of a view.
    QPoint middle() const { return {splitX() / 2, widget.height() / 2}; }

    /// From the left of the view.
    QRect rect(ImageView view) const;

    /// A view in the widget.
    QRect viewRect(ImageView view) const;
    double scale(ImageView view) const { return view == ImageView::Zoomed ? zoom : 1.0; }

    /// Where the picture's corner stands in the widget.
    QPoint corner(ImageView view) const;

    QPointF toCanvas(const QPointF& pos, ImageView view) const;
    QPointF toWidget(const QPointF& point, ImageView view) const;

    ImageView viewAt(const QPointF& pos) const;

    /// The position with which what is at a place of the zoomed view stays there.
    QPoint positionFor(double newZoom, const QPointF& fixed) const;

private:
    QPoint followingCorner() const;
};

/// Far enough for all pictures, and so near that a few of them can be added.
QPoint savePosition(const QPointF& position);

/// The pixel that a point lies in.
QPoint pixelOf(const QPointF& point);

}  // namespace Zorv
