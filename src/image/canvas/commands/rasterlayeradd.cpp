#include "image/canvas/commands/rasterlayeradd_p.h"

namespace Zorv {

RasterLayerAdd::RasterLayerAdd(ImageCanvas* canvas, ImageLayer* layer)
    : ImageUndoCommand(QStringLiteral("layerAdd")), m_canvas(canvas), m_layer(layer, HeldLayer::In)
{
}

void RasterLayerAdd::undo()
{
    m_layer.takeFrom(m_canvas);
}

void RasterLayerAdd::doRedo()
{
    m_layer.putInto(m_canvas, 0);
}

qint64 RasterLayerAdd::byteSize() const
{
    return qint64(sizeof *this) + m_layer.byteSize();
}

qint64 RasterLayerAdd::pack(qint64 limit)
{
    return m_layer.pack(limit);
}

}  // namespace Zorv
