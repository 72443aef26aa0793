#include "image/canvas/commands/imagecanvassize_p.h"

#include "image/canvas/imagecanvas_p.h"

namespace Zorv {

ImageCanvasSize::ImageCanvasSize(ImageCanvas* canvas, const QSize& before, const QImage& maskBefore)
    : ImageUndoCommand(QStringLiteral("setSize")), m_canvas(canvas), m_other(before)
{
    keep(maskBefore);
}

// Most masks select everything; then there is nothing to keep.
void ImageCanvasSize::keep(const QImage& mask)
{
    ImageSelection selection;
    selection.fromMask(mask);
    m_allSelected = selection.isAll();
    m_mask = PixelTiles(mask);
    if (!m_allSelected) {
        m_mask.save(mask, mask.rect());
    }
}

void ImageCanvasSize::exchange()
{
    ImageCanvasPrivate& canvas = ImageCanvasPrivate::of(m_canvas);
    const QSize size = canvas.size;
    const QImage mask = canvas.selection.mask();
    canvas.applySize(m_other);
    if (!m_allSelected) {
        QImage before;
        m_mask.exchange(before);
        canvas.selection.fromMask(before);
    }
    m_other = size;
    keep(mask);
}

void ImageCanvasSize::undo()
{
    exchange();
}

void ImageCanvasSize::doRedo()
{
    exchange();
}

qint64 ImageCanvasSize::byteSize() const
{
    return qint64(sizeof *this) + m_mask.byteSize();
}

qint64 ImageCanvasSize::pack(qint64 limit)
{
    return m_mask.pack(limit);
}

}  // namespace Zorv
