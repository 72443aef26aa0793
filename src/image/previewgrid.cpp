#include "image/previewgrid_p.h"

#include <algorithm>
#include <cmath>

// Every number of columns is tried, and the one with the largest pictures wins. The scale is then
// rounded down to a whole zoom or a whole divisor, so that all pixels are shown at the same size.

namespace Zorv {

namespace {

constexpr double LargestZoom = 16;

int ceilDiv(int x, int by)
{
    return (x + by - 1) / by;
}

}  // namespace

PreviewGrid::PreviewGrid(const QSize& window, const QSize& picture, int count, const QSize& label,
                         int gap)
    : m_label(label.height()), m_gap(gap)
{
    m_count = count;
    double best = 0;
    for (int columns = 1; columns <= count && !picture.isEmpty(); ++columns) {
        const double scale = scaleFor(window, picture, columns);
        if (scale > best) {
            best = scale;
            m_columns = columns;
        }
    }
    if (best <= 0) {
        m_count = 0;
        return;
    }
    m_zoom = std::max(int(std::min(best, LargestZoom)), 1);
    m_divisor = best < 1 ? int(std::ceil(1 / best)) : 1;
    m_size = {ceilDiv(picture.width() * m_zoom, m_divisor),
              ceilDiv(picture.height() * m_zoom, m_divisor)};
    const int room = (window.width() - gap) / m_columns - gap;
    m_width = std::max(m_size.width(), std::min(label.width(), room));
}

/// The scale of a picture with this number of columns.
double PreviewGrid::scaleFor(const QSize& window, const QSize& picture, int columns) const
{
    const int rows = ceilDiv(m_count, columns);
    const int width = (window.width() - m_gap) / columns - m_gap;
    const int height = (window.height() - m_gap) / rows - m_gap - m_label;
    return std::min(width / double(picture.width()), height / double(picture.height()));
}

QRect PreviewGrid::picture(int index) const
{
    if (index < 0 || index >= m_count) {
        return {};
    }
    const int inCell = (m_width - m_size.width()) / 2;
    const QPoint place(index % m_columns * (m_width + m_gap) + m_gap + inCell,
                       index / m_columns * (m_size.height() + m_label + m_gap) + m_gap);
    return {place, m_size};
}

QRect PreviewGrid::label(int index) const
{
    const QRect above = picture(index);
    const int inCell = (m_width - m_size.width()) / 2;
    return above.isNull() ? QRect()
                          : QRect(above.left() - inCell, above.bottom() + 1, m_width, m_label);
}

QRect PreviewGrid::cell(int index) const
{
    return picture(index) | label(index);
}

int PreviewGrid::indexAt(const QPoint& place) const
{
    for (int i = 0; i < m_count; ++i) {
        if (cell(i).contains(place)) {
            return i;
        }
    }
    return -1;
}

QRect PreviewGrid::part(int index, const QRect& pixels) const
{
    const QRect all = picture(index);
    const QPoint from(pixels.left() * m_zoom / m_divisor, pixels.top() * m_zoom / m_divisor);
    const QPoint to(ceilDiv((pixels.right() + 1) * m_zoom, m_divisor),
                    ceilDiv((pixels.bottom() + 1) * m_zoom, m_divisor));
    return QRect(all.topLeft() + from, QSize(to.x() - from.x(), to.y() - from.y())) & all;
}

}  // namespace Zorv
