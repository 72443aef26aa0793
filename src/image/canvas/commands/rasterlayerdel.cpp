#include "image/canvas/commands/rasterlayerdel_p.h"

namespace Zorv {

RasterLayerDel::RasterLayerDel(ImageCanvas* canvas, ImageLayer* layer, int row)
    : ImageUndoCommand(QStringLiteral("layerDelete")), m_canvas(canvas),
      m_layer(layer, HeldLayer::Out), m_row(row)
{
}

void RasterLayerDel::undo()
{
    m_layer.putInto(m_canvas, m_row);
}

void RasterLayerDel::doRedo()
{
    m_layer.takeFrom(m_canvas);
}

qint64 RasterLayerDel::byteSize() const
{
    return qint64(sizeof *this) + m_layer.byteSize();
}

qint64 RasterLayerDel::pack(qint64 limit)
{
    return m_layer.pack(limit);
}

}  // namespace Zorv
