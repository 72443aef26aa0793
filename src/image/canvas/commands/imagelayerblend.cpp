#include "image/canvas/commands/imagelayerblend_p.h"

namespace Zorv {

ImageLayerBlend::ImageLayerBlend(ImageLayer* layer, QPainter::CompositionMode before)
    : ImageUndoCommand(QStringLiteral("layerBlend")), m_layer(layer), m_other(before)
{
}

void ImageLayerBlend::undo()
{
    const QPainter::CompositionMode now = m_layer->blendMode();
    m_layer->setBlendMode(m_other, false);
    m_other = now;
}

void ImageLayerBlend::doRedo()
{
    undo();
}

qint64 ImageLayerBlend::byteSize() const
{
    return sizeof *this;
}

}  // namespace Zorv
