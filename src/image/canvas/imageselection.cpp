#include "image/canvas/imageselection.h"

#include "image/canvas/monopalette.h"
#include "media/tools/raster_p.h"

#include <QPainter>

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>

namespace Zorv {

namespace {

const QVector<QRgb>& maskTable()
{
    static const QVector<QRgb> table = MonoPalette().toRgbPal().mid(0, 2);
    return table;
}

bool isAllSelected(const QImage& mask)
{
    const Raster<const quint8> pixels(mask);
    for (int y = 0; y < pixels.height; ++y) {
        if (std::memchr(pixels.row(y), 0, std::size_t(pixels.width))) {
            return false;
        }
    }
    return true;
}

/// Changes values above 1, which have no table entry, to 1.
void normalize(QImage& mask)
{
    const Raster<const quint8> pixels(qAsConst(mask));
    quint8 bits = 0;
    for (int y = 0; y < pixels.height; ++y) {
        const quint8* row = pixels.row(y);
        bits = std::accumulate(row, row + pixels.width, bits, std::bit_or<quint8>());
    }
    if (bits <= 1) {
        return;
    }
    const Raster<quint8> changed(mask);
    for (int y = 0; y < changed.height; ++y) {
        quint8* row = changed.row(y);
        std::transform(row, row + changed.width, row, [](quint8 x) { return x > 0 ? 1 : 0; });
    }
}

template <class Pixel>
void setWhere(QImage& image, const QImage& mask, bool unselected, Pixel color)
{
    const Raster<Pixel> pixels(image);
    const Raster<const quint8> selected(mask);
    for (int y = 0; y < pixels.height; ++y) {
        Pixel* pixel = pixels.row(y);
        const quint8* select = selected.row(y);
        for (int x = 0; x < pixels.width; ++x) {
            pixel[x] = (select[x] == 0) == unselected ? color : pixel[x];
        }
    }
}

}  // namespace

ImageSelection::ImageSelection() = default;

ImageSelection::~ImageSelection() = default;

const QImage& ImageSelection::mask() const
{
    return m_mask;
}

QImage* ImageSelection::editMask()
{
    m_all.reset();
    return &m_mask;
}

void ImageSelection::fromMask(const QImage& mask)
{
    if (mask.format() == QImage::Format_Indexed8) {
        m_mask = mask;
        if (m_mask.colorTable() != maskTable()) {
            m_mask.setColorTable(maskTable());
        }
        normalize(m_mask);
        m_all.reset();
    }
}

void ImageSelection::fromRect(const QRect& rect)
{
    const QRect inside = rect.normalized() & m_mask.rect();
    m_mask.fill(0);
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        std::memset(m_mask.scanLine(y) + inside.left(), 1, std::size_t(inside.width()));
    }
    m_all = inside == m_mask.rect();
}

void ImageSelection::setSize(const QSize& size)
{
    m_mask = size.isEmpty() ? QImage() : QImage(size, QImage::Format_Indexed8);
    if (!m_mask.isNull()) {
        m_mask.setColorTable(maskTable());
        m_mask.fill(1);
    }
    m_all = true;
}

bool ImageSelection::isAll() const
{
    if (!m_all) {
        m_all = isAllSelected(m_mask);
    }
    return *m_all;
}

void ImageSelection::enableQueries(bool enabled)
{
    m_queriesEnabled = enabled;
}

bool ImageSelection::queriesEnabled() const
{
    return m_queriesEnabled;
}

QImage ImageSelection::filter(const QImage& image, bool inverse, unsigned int color) const
{
    QImage result = image;
    if (image.size() == m_mask.size() && !image.isNull()) {
        if (image.depth() == 8) {
            setWhere(result, m_mask, inverse, quint8(color));
        } else if (image.depth() == 32) {
            setWhere(result, m_mask, inverse, quint32(color));
        }
    }
    return result;
}

void ImageSelection::render(QPainter* painter) const
{
    if (!isAll()) {
        painter->drawImage(0, 0, m_mask);
    }
}

}  // namespace Zorv
