#include "image/tools/penseltool.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagepainter.h"
#include "image/canvas/imageselection.h"

namespace Zorv {

PenSelTool::PenSelTool(ImageCanvas* canvas, QObject* parent)
    : BasePenTool(canvas, true, QStringLiteral("select"), parent),
      m_painter(canvas->painter(ImageCanvas::IndexedFormat, &m_palette))
{
}

PenSelTool::~PenSelTool() = default;

void PenSelTool::deactivated()
{
    BasePenTool::deactivated();
    canvas()->selection()->enableQueries(true);
}

void PenSelTool::mousePressed(Qt::KeyboardModifiers modifiers, Qt::MouseButton button,
                              QPoint screen, QPoint image, QCursor& cursor)
{
    if (!isPressed()) {
        m_takesAway = button == Qt::RightButton;
    }
    BasePenTool::mousePressed(modifiers, button, screen, image, cursor);
}

bool PenSelTool::canStroke() const
{
    return !canvas()->size().isEmpty();
}

ImagePainter* PenSelTool::strokePainter()
{
    m_painter->setImage(canvas()->selection()->editMask());
    return m_painter.get();
}

void PenSelTool::beginRecord()
{
    canvas()->beginStroke(nullptr, ImageCanvas::TiledStroke, title());
}

// Painters ask the mask whether a pixel may be painted. While the mask itself is painted on, it
// must allow pixels that are not selected yet, but only then.
void PenSelTool::draw(const QPoint& point)
{
    canvas()->selection()->enableQueries(m_takesAway);
    BasePenTool::draw(point);
    canvas()->selection()->enableQueries(true);
}

void PenSelTool::doDraw(const QPoint& point, ImagePainter* painter)
{
    painter->setColor(m_takesAway ? m_palette.background() : m_palette.foreground());
    paint(painter, point, Apart);
    // Invalidates the cached answer to "is everything selected?".
    canvas()->selection()->editMask();
}

}  // namespace Zorv
