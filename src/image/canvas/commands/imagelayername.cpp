#include "image/canvas/commands/imagelayername_p.h"

namespace Zorv {

ImageLayerName::ImageLayerName(ImageLayer* layer, const QString& before)
    : ImageUndoCommand(QStringLiteral("layerName")), m_layer(layer), m_other(before)
{
}

void ImageLayerName::undo()
{
    const QString now = m_layer->name();
    m_layer->setName(m_other, false);
    m_other = now;
}

void ImageLayerName::doRedo()
{
    undo();
}

qint64 ImageLayerName::byteSize() const
{
    return qint64(sizeof *this) + m_other.size() * qint64(sizeof(QChar));
}

}  // namespace Zorv
