#include "image/canvas/commands/imagelayeropacity_p.h"

namespace Zorv {

ImageLayerOpacity::ImageLayerOpacity(ImageLayer* layer, double before)
    : ImageUndoCommand(QStringLiteral("layerOpacity")), m_layer(layer), m_other(before)
{
}

void ImageLayerOpacity::undo()
{
    const double now = m_layer->opacity();
    m_layer->setOpacity(m_other, false);
    m_other = now;
}

void ImageLayerOpacity::doRedo()
{
    undo();
}

qint64 ImageLayerOpacity::byteSize() const
{
    return sizeof *this;
}

int ImageLayerOpacity::id() const
{
    return 1;
}

bool ImageLayerOpacity::mergeWith(const QUndoCommand* next)
{
    const auto* other = dynamic_cast<const ImageLayerOpacity*>(next);
    if (!other || other->m_layer.get() != m_layer.get()) {
        return false;
    }
    setObsolete(m_layer->opacity() == m_other);
    return true;
}

}  // namespace Zorv
