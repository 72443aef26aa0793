#include "image/canvas/indexpainter.h"

#include "image/canvas/imageselection.h"
#include "media/tools/raster_p.h"

#include <QImage>

#include <cstring>

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

void IndexPainter::paintRuns(int top, const std::vector<Run>& runs)
{
    if (!m_remap.isEmpty() || m_image->format() != QImage::Format_Indexed8) {
        ImagePainter::paintRuns(top, runs);
        return;
    }
    const auto color = uchar(m_color);
    const bool all = paintsAll();
    const Raster<quint8> pixels(*m_image);
    const Raster<const quint8> mask(m_selection->mask());
    int y = top;
    for (const Run& run : runs) {
        quint8* row = pixels.row(y);
        const quint8* selected = mask.row(y);
        ++y;
        if (all && run.left <= run.right) {
            std::memset(row + run.left, color, std::size_t(run.right - run.left + 1));
            continue;
        }
        for (int x = run.left; x <= run.right; ++x) {
            row[x] = selected[x] > 0 ? color : row[x];
        }
    }
}

}  // namespace Zorv
