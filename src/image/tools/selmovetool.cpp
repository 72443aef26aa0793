#include "image/tools/selmovetool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/tools/arrowstep_p.h"
#include "image/tools/movedpiece_p.h"

#include <QCursor>
#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace Zorv {

namespace {

// The merge number that joins consecutive arrow steps into one undo step.
const int ArrowSteps = 0x5E1;

}  // namespace

SelMoveTool::SelMoveTool(ImageCanvas* canvas, QObject* parent) : ImageTool(canvas, nullptr, parent)
{
    connect(canvas, &ImageCanvas::strokeEnded, this, &SelMoveTool::endMove);
}

SelMoveTool::~SelMoveTool() = default;

void SelMoveTool::deactivated()
{
    ImageTool::deactivated();
    m_piece.reset();
}

void SelMoveTool::activeLayerChanged()
{
    endMove();
    m_piece.reset();
}

bool SelMoveTool::keyPressed(Qt::KeyboardModifiers, int key)
{
    const QPoint step = arrowStep(key);
    if (step.isNull() || !paintedLayer()) {
        return false;
    }
    if (!isPressed()) {
        beginMove(ArrowSteps);
        moved(m_offset + step);
        endMove();
    }
    return true;
}

void SelMoveTool::mousePressed(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                               QPoint image, QCursor& cursor)
{
    cursor = Qt::SizeAllCursor;
    if (beginPress(button, screen, image) && paintedLayer()) {
        m_pressPixel = image;
        beginMove(0);
    }
}

void SelMoveTool::mouseMoved(Qt::KeyboardModifiers, QPoint screen, QPoint image, QCursor& cursor)
{
    cursor = Qt::SizeAllCursor;
    setLastPos(image);
    if (m_isMoving) {
        moved(m_offset + dragged(screen, image));
    }
}

void SelMoveTool::mouseReleased(Qt::KeyboardModifiers, Qt::MouseButton button, QPoint screen,
                                QPoint image, QCursor& cursor)
{
    cursor = Qt::SizeAllCursor;
    setLastPos(image);
    if (endPress(button) && m_isMoving) {
        moved(m_offset + dragged(screen, image));
        endMove();
    }
}

void SelMoveTool::mouseLost()
{
    ImageTool::mouseLost();
    endMove();
}

/// How far the mouse has moved since the press, in canvas pixels.
QPoint SelMoveTool::dragged(QPoint screen, QPoint image) const
{
    const QPointF way = QPointF(screen - pressPos()) / canvas()->zoomLevel();
    const QPoint rounded(qRound(way.x()), qRound(way.y()));
    // Rounding the distance moves the piece when the mouse is halfway between pixels. But a
    // view may show the picture at another zoom than the canvas has; then only the pixels are
    // right.
    const QPoint pixels = image - m_pressPixel;
    const QPoint difference = rounded - pixels;
    const bool isAlike = std::max(std::abs(difference.x()), std::abs(difference.y())) <= 1;
    return isAlike ? rounded : pixels;
}

void SelMoveTool::beginMove(int mergeId)
{
    const ImageLayer* layer = paintedLayer();
    canvas()->endStroke();
    if (!m_piece || !m_piece->isAsShown(*canvas(), *layer, m_shown)) {
        m_piece = std::make_unique<MovedPiece>(*canvas(), *layer);
        m_offset = QPoint();
        m_shown = QPoint();
    }
    canvas()->beginStroke(paintedLayer(), ImageCanvas::TiledStroke, QStringLiteral("moveSelection"),
                          mergeId);
    m_isMoving = true;
}

/// Also called when the canvas has ended the stroke itself.
void SelMoveTool::endMove()
{
    if (m_isMoving) {
        m_isMoving = false;
        m_offset = m_shown;
        canvas()->endStroke();
    }
}

void SelMoveTool::moved(const QPoint& offset)
{
    const QRect rect = m_piece->rectAt(m_shown) | m_piece->rectAt(offset);
    ImageLayer* layer = paintedLayer();
    if (!layer || offset == m_shown) {
        return;
    }
    if (!rect.isEmpty()) {
        if (!canvas()->willChange(rect)) {
            return;
        }
        m_piece->show(*layer->pixels(), rect, offset);
        canvas()->changed(rect);
    }
    m_shown = offset;
    m_piece->remember(layer->image());
    emit layerChanged();
}

}  // namespace Zorv
