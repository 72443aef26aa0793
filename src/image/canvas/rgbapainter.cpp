#include "image/canvas/rgbapainter.h"

#include "image/canvas/imagepalette.h"

#include <QColor>
#include <QImage>

namespace Zorv {

namespace {

bool canUse(const QImage* image, int x, int y)
{
    return image && image->format() == QImage::Format_ARGB32 && image->rect().contains(x, y);
}

unsigned char indexOf(const ImagePalette& palette, QRgb color)
{
    return palette.index(QColor::fromRgba(color));
}

}  // namespace

void RGBAPainter::setColor(unsigned char index)
{
    m_color = m_palette->color(index);
}

unsigned char RGBAPainter::color(const QPoint& point) const
{
    return canUse(m_image, point.x(), point.y()) ? indexOf(*m_palette, pixel(point.x(), point.y()))
                                                 : static_cast<unsigned char>(0);
}

bool RGBAPainter::canDraw(int x, int y) const
{
    return m_remap.isEmpty() || m_remap.contains(indexOf(*m_palette, pixel(x, y)));
}

quint32 RGBAPainter::pixel(int x, int y) const
{
    return canUse(m_image, x, y) ? reinterpret_cast<const QRgb*>(m_image->constScanLine(y))[x] : 0;
}

void RGBAPainter::setPixel(int x, int y)
{
    if (canUse(m_image, x, y)) {
        QRgb& pixel = reinterpret_cast<QRgb*>(m_image->scanLine(y))[x];
        pixel = m_remap.isEmpty() ? m_color
                                  : m_palette->color(m_remap.value(indexOf(*m_palette, pixel)));
    }
}

}  // namespace Zorv
