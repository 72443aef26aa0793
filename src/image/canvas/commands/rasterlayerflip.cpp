#include "image/canvas/commands/rasterlayerflip_p.h"

namespace Zorv {

RasterLayerFlip::RasterLayerFlip(ImageLayer* layer, bool horizontal, bool vertical)
    : ImageUndoCommand(QStringLiteral("flip")), m_layer(layer), m_horizontal(horizontal),
      m_vertical(vertical)
{
}

void RasterLayerFlip::undo()
{
    m_layer->setImage(m_layer->image().mirrored(m_horizontal, m_vertical));
}

void RasterLayerFlip::doRedo()
{
    undo();
}

qint64 RasterLayerFlip::byteSize() const
{
    return sizeof *this;
}

}  // namespace Zorv
