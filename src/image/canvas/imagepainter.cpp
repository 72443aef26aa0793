#include "image/canvas/imagepainter.h"

#include "image/canvas/imageselection.h"

#include <QImage>

#include <cstdlib>
#include <vector>

namespace Zorv {

ImagePainter::ImagePainter(ImagePalette* palette, ImageSelection* selection)
    : m_palette(palette), m_selection(selection)
{
}

ImagePainter::~ImagePainter() = default;

void ImagePainter::point(const QPoint& point)
{
    if (!m_image) {
        return;
    }
    const QRect square =
        QRect(point, QSize(m_width, m_width)) & m_image->rect() & m_selection->mask().rect();
    for (int y = square.top(); y <= square.bottom(); ++y) {
        for (int x = square.left(); x <= square.right(); ++x) {
            if (m_selection->clipQuery(x, y) && canDraw(x, y)) {
                setPixel(x, y);
            }
        }
    }
}

void ImagePainter::line(const QPoint& from, const QPoint& to)
{
    const QPoint span(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
    const QPoint step(to.x() < from.x() ? -1 : 1, to.y() < from.y() ? -1 : 1);
    const bool wide = span.x() >= span.y();
    const int longer = wide ? span.x() : span.y();
    const int shorter = wide ? span.y() : span.x();
    int error = longer / 2;
    QPoint at = from;
    for (int i = 0; i <= longer; ++i) {
        point(at);
        error += shorter;
        const bool aside = error >= longer;
        if (aside) {
            error -= longer;
        }
        at.rx() += wide || aside ? step.x() : 0;
        at.ry() += !wide || aside ? step.y() : 0;
    }
}

// Columns are filled, and the runs beside them that are still to be filled are remembered by
// their first pixel.
void ImagePainter::floodFill(const QPoint& point)
{
    const quint32 seed = pixel(point.x(), point.y());
    if (!m_image || !m_image->rect().contains(point) || seed == m_color) {
        return;
    }
    const auto matches = [this, seed](int x, int y) {
        return m_image->rect().contains(x, y) && m_selection->clipQuery(x, y) &&
               pixel(x, y) == seed;
    };
    std::vector<QPoint> open;
    open.reserve(1024);
    open.push_back(point);
    while (!open.empty()) {
        const int x = open.back().x();
        int y = open.back().y();
        open.pop_back();
        while (matches(x, y - 1)) {
            --y;
        }
        bool inRun[2] = {false, false};
        for (; matches(x, y); ++y) {
            setPixel(x, y);
            if (pixel(x, y) == seed) {
                return;  // A remap that leaves it as it is would find it for ever.
            }
            for (const int side : {0, 1}) {
                const int beside = side == 0 ? x - 1 : x + 1;
                const bool runs = matches(beside, y);
                if (runs && !inRun[side]) {
                    open.emplace_back(beside, y);
                }
                inRun[side] = runs;
            }
        }
    }
}

int ImagePainter::width() const
{
    return m_width;
}

void ImagePainter::setWidth(int width)
{
    m_width = width;
}

QImage* ImagePainter::image() const
{
    return m_image;
}

void ImagePainter::setImage(QImage* image)
{
    m_image = image;
}

void ImagePainter::setRemap(unsigned char from, unsigned char to)
{
    m_remap.insert(from, to);
}

void ImagePainter::clearRemap()
{
    m_remap.clear();
}

}  // namespace Zorv
