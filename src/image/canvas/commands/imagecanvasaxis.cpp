#include "image/canvas/commands/imagecanvasaxis_p.h"

namespace Zorv {

ImageCanvasAxis::ImageCanvasAxis(ImageCanvas* canvas, const QPoint& before)
    : ImageUndoCommand(QStringLiteral("axis")), m_canvas(canvas), m_other(before)
{
}

void ImageCanvasAxis::undo()
{
    const QPoint now = m_canvas->axis();
    m_canvas->setAxis(m_other);
    m_other = now;
}

void ImageCanvasAxis::doRedo()
{
    undo();
}

qint64 ImageCanvasAxis::byteSize() const
{
    return sizeof *this;
}

}  // namespace Zorv
