#include "image/canvas/commands/imagecanvasformat_p.h"

namespace Zorv {

ImageCanvasFormat::ImageCanvasFormat(ImageCanvas* canvas, ImageCanvas::Format before)
    : ImageUndoCommand(QStringLiteral("setFormat")), m_canvas(canvas), m_other(before)
{
}

void ImageCanvasFormat::undo()
{
    const ImageCanvas::Format now = m_canvas->format();
    m_canvas->setFormat(m_other, false);
    m_other = now;
}

void ImageCanvasFormat::doRedo()
{
    undo();
}

qint64 ImageCanvasFormat::byteSize() const
{
    return sizeof *this;
}

}  // namespace Zorv
