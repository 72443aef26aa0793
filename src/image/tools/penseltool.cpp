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

// The mask is open to all only while it is painted on, for every painter asks it.
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
    // What the mask knows of itself is not true any more.
    canvas()->selection()->editMask();
}

}  // namespace Zorv
