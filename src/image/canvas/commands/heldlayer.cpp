#include "image/canvas/commands/heldlayer_p.h"

#include "image/canvas/imagecanvas_p.h"

namespace Zorv {

void HeldLayer::putInto(ImageCanvas* canvas, int row)
{
    m_place = In;
    ImageLayersPrivate::of(canvas).insert(m_layer, row);
}

void HeldLayer::takeFrom(ImageCanvas* canvas)
{
    m_place = Out;
    const int row = m_layer->index();
    if (row >= 0) {
        ImageLayersPrivate::of(canvas).take(row);
    }
}

qint64 HeldLayer::byteSize() const
{
    if (m_place == In) {
        return 0;
    }
    return m_layer->m_packed ? m_layer->m_packed->byteSize()
                             : qint64(m_layer->m_image.sizeInBytes());
}

qint64 HeldLayer::pack(qint64 limit)
{
    if (m_place == In || m_layer->index() >= 0) {
        return 0;
    }
    if (!m_layer->m_packed && !m_layer->m_image.isNull()) {
        m_layer->m_packed = std::make_unique<PixelTiles>(m_layer->m_image);
        m_layer->m_packed->save(m_layer->m_image, m_layer->m_image.rect());
        m_layer->m_image = QImage();
    }
    return m_layer->m_packed ? m_layer->m_packed->pack(limit) : 0;
}

}  // namespace Zorv
