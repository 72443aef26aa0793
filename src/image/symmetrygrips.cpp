// The symmetry axes cross the whole picture, where a press must paint. So they are dragged at
// grips, which are outside the picture as far as there is room.

#include "image/imagerenderer_p.h"

#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

const int GripSide = 11;
const QColor AxisColor(230, 0, 120);

}  // namespace

QRect ImageRendererPrivate::gripRect(Grip of, ImageView view) const
{
    const auto flag = of == UprightGrip ? StrokeOptions::LeftRight : StrokeOptions::TopBottom;
    const ImagePlace now = place();
    if (!options.symmetry().testFlag(flag) || !now.isShown(view) || now.size.isEmpty()) {
        return {};
    }
    const QPoint axis = savePosition(now.toWidget(options.symmetryAxis(now.size), view));
    const QPoint corner = now.corner(view);
    const QRect inView = now.viewRect(view);
    QRect rect(0, 0, GripSide, GripSide);
    if (of == UprightGrip) {
        rect.moveTopLeft({axis.x() - GripSide / 2, std::max(corner.y() - GripSide - 1, 0)});
    } else {
        rect.moveTopLeft(
            {std::max(corner.x() - GripSide - 1, inView.left()), axis.y() - GripSide / 2});
    }
    return inView.intersects(rect) ? rect : QRect();
}

void ImageRendererPrivate::dragSymmetry(const QPointF& pos)
{
    const QSize size = canvas.size();
    const QPointF point = place().toCanvas(pos, pressView);
    QPointF axis = options.symmetryAxis(size);
    if (grip == UprightGrip) {
        axis.setX(std::clamp(point.x(), 0.0, double(size.width())));
    } else {
        axis.setY(std::clamp(point.y(), 0.0, double(size.height())));
    }
    options.setSymmetryAxis(axis);
}

void ImageRendererPrivate::drawAxes(QPainter& painter, ImageView view) const
{
    const ImagePlace now = place();
    const QPoint axis = savePosition(now.toWidget(options.symmetryAxis(now.size), view));
    const QRect inView = now.viewRect(view);
    const QRect picture = now.rect(view).translated(inView.topLeft());
    for (const Grip each : {UprightGrip, LevelGrip}) {
        const QRect rect = gripRect(each, view);
        const auto flag = each == UprightGrip ? StrokeOptions::LeftRight : StrokeOptions::TopBottom;
        if (!options.symmetry().testFlag(flag)) {
            continue;
        }
        const QRect line = each == UprightGrip
                               ? QRect(axis.x(), picture.top(), 1, picture.height())
                               : QRect(picture.left(), axis.y(), picture.width(), 1);
        painter.fillRect(line & inView, AxisColor);
        painter.fillRect(rect, Qt::white);
        painter.fillRect(rect.adjusted(1, 1, -1, -1), AxisColor);
    }
}

}  // namespace Zorv
