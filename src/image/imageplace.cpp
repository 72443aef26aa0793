#include "image/imageplace_p.h"

#include "graphics/stage/rounding_p.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Zorv {

QPoint savePosition(const QPointF& position)
{
    return {stageInt(roundedInt(position.x())), stageInt(roundedInt(position.y()))};
}

QPoint pixelOf(const QPointF& point)
{
    return savePosition({std::floor(point.x()), std::floor(point.y())});
}

bool ImagePlace::isShown(ImageView view) const
{
    return view == ImageView::Zoomed ? showZoomed : showOriginal;
}

QRect ImagePlace::rect(ImageView view) const
{
    if (view == ImageView::Original) {
        return {followOriginal && isSplit() ? followingCorner() : position - center(), size};
    }
    QTransform transform = QTransform::fromTranslate(position.x(), position.y());
    transform.scale(zoom, zoom);
    transform.translate(-center().x(), -center().y());
    return transform.mapRect(QRect(QPoint(), size));
}

/// Centres a picture that fits. Otherwise shows the point that is in the middle of the zoomed view.
QPoint ImagePlace::followingCorner() const
{
    const QPointF shown =
        QPointF(middle() - rect(ImageView::Zoomed).topLeft()) / std::max(zoom, 1e-6);
    const auto side = [](int view, int picture, int middle, double point) {
        const int room = view - picture;
        return room >= 0 ? room / 2 : std::clamp(middle - roundedInt(point), room, 0);
    };
    return {side(splitX(), size.width(), middle().x(), shown.x()),
            side(widget.height(), size.height(), middle().y(), shown.y())};
}

QRect ImagePlace::viewRect(ImageView view) const
{
    const int left = view == ImageView::Zoomed && isSplit() ? splitX() : 0;
    return {left, 0, splitX(), widget.height()};
}

QPoint ImagePlace::corner(ImageView view) const
{
    return rect(view).topLeft() + viewRect(view).topLeft();
}

QPointF ImagePlace::toCanvas(const QPointF& pos, ImageView view) const
{
    return (pos - corner(view)) / scale(view);
}

QPointF ImagePlace::toWidget(const QPointF& point, ImageView view) const
{
    return point * scale(view) + corner(view);
}

ImageView ImagePlace::viewAt(const QPointF& pos) const
{
    return showZoomed && !(showOriginal && pos.x() < splitX()) ? ImageView::Zoomed
                                                               : ImageView::Original;
}

QPoint ImagePlace::positionFor(double newZoom, const QPointF& fixed) const
{
    const QPointF inView = fixed - viewRect(ImageView::Zoomed).topLeft();
    return savePosition(inView - (inView - position) * (newZoom / zoom));
}

}  // namespace Zorv
