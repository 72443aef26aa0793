// The canvas axis is drawn as a cross and dragged at the square in its middle. The square is small:
// at the zooms used to paint single pixels it covers less than one, so the pixels around the axis
// can still be clicked.

#include "image/canvas/imagelayers.h"
#include "image/imagerenderer_p.h"
#include "image/tools/arrowstep_p.h"

#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Zorv {

namespace {

const int Arm = 8;   // length of each arm of the cross
const int Half = 3;  // of the square: pixels on each side of its middle

/// Merge numbers: a drag is one undo step, and so are consecutive arrow keys.
enum MergeId { DragSteps = 1, ArrowSteps };

/// Limits the axis to what a picture can reach, so that files can store the number.
QPoint withinReach(const QPoint& axis)
{
    const int reach = ImageCanvas::MaxSide;
    return {std::clamp(axis.x(), -reach, reach), std::clamp(axis.y(), -reach, reach)};
}

}  // namespace

bool ImageRendererPrivate::isAxisShown() const
{
    return q->option(ImageRenderer::CanvasAxis) && canvas.layers()->count() > 0;
}

QPoint ImageRendererPrivate::axisPlace(ImageView view) const
{
    return savePosition(place().toWidget(canvas.axis(), view));
}

QRect ImageRendererPrivate::axisRect(ImageView view) const
{
    const QRect rect(axisPlace(view) - QPoint(Half, Half), QSize(2 * Half + 1, 2 * Half + 1));
    const ImagePlace now = place();
    return isAxisShown() && now.isShown(view) ? rect & now.viewRect(view) : QRect();
}

void ImageRendererPrivate::dragAxis(const QPointF& pos)
{
    const QPointF axis = place().toCanvas(pos, pressView) + axisFromPointer;
    const QScopedValueRollback<bool> guard(isMovingAxis, true);
    canvas.moveAxis(withinReach(savePosition(axis)), DragSteps);
}

bool ImageRendererPrivate::moveAxisBy(int key, Qt::KeyboardModifiers modifiers)
{
    const QPoint step = arrowStep(key);
    const bool isMeant = modifiers.testFlag(Qt::ControlModifier) &&
                         !modifiers.testFlag(Qt::ShiftModifier) && isAxisShown();
    if (step.isNull() || !isMeant) {
        return false;
    }
    if (!pressed) {
        // Limited before the step is added, because a file may contain any number.
        canvas.moveAxis(withinReach(withinReach(canvas.axis()) + step), ArrowSteps);
    }
    return true;
}

void ImageRendererPrivate::loseAxis()
{
    if (grip == AxisGrip && !isMovingAxis) {
        grip = NoGrip;
    }
    q->update();
}

void ImageRendererPrivate::drawCanvasAxis(QPainter& painter, ImageView view) const
{
    if (!isAxisShown()) {
        return;
    }
    const QPoint axis = axisPlace(view);
    for (const auto& [edge, color] : {std::pair(1, Qt::white), std::pair(0, Qt::black)}) {
        const int arm = Arm + edge;
        const int width = 1 + 2 * edge;
        painter.fillRect(axis.x() - arm, axis.y() - edge, 2 * arm + 1, width, color);
        painter.fillRect(axis.x() - edge, axis.y() - arm, width, 2 * arm + 1, color);
        const int inner = Half - 1;
        drawOutline(painter, QRect(axis - QPoint(inner, inner), axis + QPoint(inner, inner)),
                    color);
    }
}

}  // namespace Zorv
