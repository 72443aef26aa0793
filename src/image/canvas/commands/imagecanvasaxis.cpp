#include "image/canvas/commands/imagecanvasaxis_p.h"

namespace Zorv {

ImageCanvasAxis::ImageCanvasAxis(ImageCanvas* canvas, const QPoint& before, int mergeId)
    : ImageUndoCommand(QStringLiteral("axis")), m_canvas(canvas), m_other(before),
      m_mergeId(mergeId)
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

int ImageCanvasAxis::id() const
{
    return m_mergeId == 0 ? -1 : 3;
}

bool ImageCanvasAxis::mergeWith(const QUndoCommand* next)
{
    const auto* other = dynamic_cast<const ImageCanvasAxis*>(next);
    if (!other || other->m_mergeId != m_mergeId) {
        return false;
    }
    setObsolete(m_canvas->axis() == m_other);
    return true;
}

}  // namespace Zorv
