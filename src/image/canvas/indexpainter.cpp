#include "image/canvas/indexpainter.h"

#include <QImage>

namespace Zorv {

namespace {

bool canUse(const QImage* image, int x, int y)
{
    return image && image->format() == QImage::Format_Indexed8 && image->rect().contains(x, y);
}

}  // namespace

void IndexPainter::setColor(unsigned char index)
{
    m_color = index;
}

unsigned char IndexPainter::color(const QPoint& point) const
{
    return static_cast<unsigned char>(pixel(point.x(), point.y()));
}

bool IndexPainter::canDraw(int x, int y) const
{
    return m_remap.isEmpty() || m_remap.contains(static_cast<unsigned char>(pixel(x, y)));
}

quint32 IndexPainter::pixel(int x, int y) const
{
    return canUse(m_image, x, y) ? m_image->constScanLine(y)[x] : 0;
}

void IndexPainter::setPixel(int x, int y)
{
    if (canUse(m_image, x, y)) {
        uchar& pixel = m_image->scanLine(y)[x];
        pixel = m_remap.isEmpty() ? uchar(m_color) : m_remap.value(pixel);
    }
}

}  // namespace Zorv
