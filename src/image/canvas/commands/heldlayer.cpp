#include "image/canvas/commands/heldlayer_p.h"

#include "image/canvas/imagecanvas_p.h"

namespace Zorv {

void HeldLayer::putInto(ImageCanvas* canvas, int row)
{
    if (m_isPacked) {
        m_pixels.exchange(*m_layer->pixels());
        m_pixels = PixelTiles();
        m_isPacked = false;
    }
    ImageLayersPrivate::of(canvas).insert(m_layer, row);
}

void HeldLayer::takeFrom(ImageCanvas* canvas)
{
    const int row = m_layer->index();
    if (row >= 0) {
        ImageLayersPrivate::of(canvas).take(row);
    }
}

qint64 HeldLayer::byteSize() const
{
    if (m_isPacked) {
        return m_pixels.byteSize();
    }
    return m_layer->index() < 0 ? qint64(m_layer->image().sizeInBytes()) : 0;
}

qint64 HeldLayer::pack(qint64 limit)
{
    if (!m_isPacked && m_layer->index() < 0 && !m_layer->image().isNull()) {
        m_pixels = PixelTiles(m_layer->image());
        m_pixels.save(m_layer->image(), m_layer->image().rect());
        *m_layer->pixels() = QImage();
        m_isPacked = true;
    }
    return m_pixels.pack(limit);
}

}  // namespace Zorv
