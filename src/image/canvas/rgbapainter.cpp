#include "image/canvas/rgbapainter.h"

#include "image/canvas/imagepalette.h"
#include "image/canvas/imageselection.h"
#include "media/tools/raster_p.h"

#include <QColor>
#include <QImage>

#include <algorithm>

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

void RGBAPainter::paintRuns(int top, const std::vector<Run>& runs)
{
    if (m_image->format() != QImage::Format_ARGB32) {
        return;
    }
    const Raster<QRgb> pixels(*m_image);
    const bool fills = m_remap.isEmpty() && paintsAll();
    int y = top;
    for (const Run& run : runs) {
        QRgb* row = pixels.row(y);
        if (!fills) {
            paintRun(row, y, run);
        } else if (run.left <= run.right) {
            std::fill(row + run.left, row + run.right + 1, m_color);
        }
        ++y;
    }
}

void RGBAPainter::paintRun(QRgb* row, int y, Run run)
{
    // Neighbouring pixels are often equal, and finding their entry is slow: so the last one is
    // cached.
    std::optional<QRgb> last;
    std::optional<QRgb> result;
    for (int x = run.left; x <= run.right; ++x) {
        if (!m_selection->clipQuery(x, y)) {
            continue;
        }
        if (row[x] != last) {
            last = row[x];
            result = mapped(row[x]);
        }
        if (result && meets(x, y)) {
            row[x] = *result;
        }
    }
}

/// The new value of a pixel; none if it may not be painted.
std::optional<QRgb> RGBAPainter::mapped(QRgb pixel) const
{
    if (m_remap.isEmpty()) {
        return m_color;
    }
    const auto entry = m_remap.constFind(indexOf(*m_palette, pixel));
    return entry == m_remap.constEnd() ? std::nullopt
                                       : std::optional<QRgb>(m_palette->color(*entry));
}

}  // namespace Zorv
