#include "image/canvas/commands/rasterlayerinsert_p.h"

namespace Zorv {

RasterLayerInsert::RasterLayerInsert(ImageCanvas* canvas, ImageLayer* layer, int row)
    : ImageUndoCommand(QStringLiteral("layerInsert")), m_canvas(canvas),
      m_layer(layer, HeldLayer::In), m_row(row)
{
}

void RasterLayerInsert::undo()
{
    m_layer.takeFrom(m_canvas);
}

void RasterLayerInsert::doRedo()
{
    m_layer.putInto(m_canvas, m_row);
}

qint64 RasterLayerInsert::byteSize() const
{
    return qint64(sizeof *this) + m_layer.byteSize();
}

qint64 RasterLayerInsert::pack(qint64 limit)
{
    return m_layer.pack(limit);
}

}  // namespace Zorv
