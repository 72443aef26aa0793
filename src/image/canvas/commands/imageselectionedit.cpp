#include "image/canvas/commands/imageselectionedit_p.h"

#include "image/canvas/imagecanvas_p.h"

#include <utility>

namespace Zorv {

ImageSelectionEdit::ImageSelectionEdit(ImageCanvas* canvas, PixelTiles before)
    : ImageUndoCommand(QStringLiteral("select")), m_canvas(canvas), m_tiles(std::move(before))
{
    setObsolete(m_tiles.isEmpty());
}

void ImageSelectionEdit::undo()
{
    ImageCanvasPrivate& canvas = ImageCanvasPrivate::of(m_canvas);
    canvas.selectionDiffers(m_tiles.exchange(*canvas.selection.editMask()));
}

void ImageSelectionEdit::doRedo()
{
    undo();
}

qint64 ImageSelectionEdit::byteSize() const
{
    return qint64(sizeof *this) + m_tiles.byteSize();
}

qint64 ImageSelectionEdit::pack(qint64 limit)
{
    return m_tiles.pack(limit);
}

}  // namespace Zorv
