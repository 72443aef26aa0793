#include "image/canvas/commands/rasterlayeredit_p.h"

#include "image/canvas/imagecanvas_p.h"

#include <utility>

namespace Zorv {

RasterLayerEdit::RasterLayerEdit(ImageLayer* layer, PixelTiles before, int mergeId)
    : ImageUndoCommand(QStringLiteral("edit")), m_layer(layer), m_tiles(std::move(before)),
      m_mergeId(mergeId)
{
    setObsolete(m_tiles.isEmpty());
}

void RasterLayerEdit::undo()
{
    const QRect changed = m_tiles.exchange(*m_layer->pixels());
    if (m_layer->canvas()) {
        ImageCanvasPrivate::of(m_layer->canvas()).looksDifferent(m_layer.get(), changed);
    }
}

void RasterLayerEdit::doRedo()
{
    undo();
}

qint64 RasterLayerEdit::byteSize() const
{
    return qint64(sizeof *this) + m_tiles.byteSize();
}

qint64 RasterLayerEdit::pack(qint64 limit)
{
    return m_tiles.pack(limit);
}

int RasterLayerEdit::id() const
{
    return m_mergeId == 0 ? -1 : 2;
}

bool RasterLayerEdit::mergeWith(const QUndoCommand* next)
{
    const auto* other = dynamic_cast<const RasterLayerEdit*>(next);
    if (!other || other->m_mergeId != m_mergeId || other->m_layer.get() != m_layer.get() ||
        !m_tiles.isLike(other->m_tiles)) {
        return false;
    }
    m_tiles.append(other->m_tiles);
    m_tiles.dropEqual(m_layer->image());
    setObsolete(m_tiles.isEmpty());
    return true;
}

}  // namespace Zorv
