#include "image/tools/movedpiece_p.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagepalette.h"
#include "image/canvas/imageselection.h"
#include "media/tools/cropimage.h"
#include "media/tools/raster_p.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cstring>

// Two full images make a move repeatable: the layer as it was (`m_before`), and the layer with the
// background where the piece was lifted off (`m_rest`). Showing the piece at an offset copies the
// rectangle from `m_rest` and draws the piece from `m_before` over it. So nothing accumulates: the
// piece can be moved over other pixels and back.

namespace Zorv {

namespace {

/// Compares pixel bytes only; colour tables do not count.
bool areEqual(const QImage& a, const QImage& b)
{
    if (a.size() != b.size() || a.format() != b.format()) {
        return false;
    }
    const auto length = std::size_t(a.width()) * std::size_t(a.depth()) / 8;
    for (int y = 0; y < a.height(); ++y) {
        if (std::memcmp(a.constScanLine(y), b.constScanLine(y), length) != 0) {
            return false;
        }
    }
    return true;
}

void copyPart(const QImage& from, QImage& to, const QRect& rect)
{
    const auto pixel = std::size_t(to.depth()) / 8;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        std::memcpy(to.scanLine(y) + std::size_t(rect.left()) * pixel,
                    from.constScanLine(y) + std::size_t(rect.left()) * pixel,
                    std::size_t(rect.width()) * pixel);
    }
}

QRect selectedRect(const QImage& mask)
{
    // With its table, entries shown as transparent would not count.
    QImage plain = mask;
    plain.setColorCount(0);
    return cropImageRect(plain);
}

}  // namespace

MovedPiece::MovedPiece(const ImageCanvas& canvas, const ImageLayer& layer)
    : m_layer(&layer), m_palette(canvas.palette()), m_table(canvas.palette()->toRgbPal()),
      m_before(layer.image()), m_mask(canvas.selection()->mask()), m_rect(selectedRect(m_mask)),
      m_shownKey(m_before.cacheKey())
{
    const unsigned char background = m_palette->background();
    m_rest = canvas.selection()->filter(
        m_before, false, m_before.depth() == 8 ? background : m_palette->color(background));
}

bool MovedPiece::isAsShown(const ImageCanvas& canvas, const ImageLayer& layer, const QPoint& offset)
{
    if (&layer != m_layer || canvas.palette() != m_palette || m_table != m_palette->toRgbPal() ||
        !areEqual(canvas.selection()->mask(), m_mask)) {
        return false;
    }
    if (layer.image().cacheKey() == m_shownKey) {
        return true;
    }
    QImage expected = m_rest;
    show(expected, expected.rect(), offset);
    return areEqual(expected, layer.image());
}

QRect MovedPiece::rectAt(const QPoint& offset) const
{
    return m_rect.translated(offset) & m_before.rect();
}

void MovedPiece::show(QImage& image, const QRect& rect, const QPoint& offset)
{
    if (m_before.size() != m_mask.size() || image.size() != m_before.size()) {
        return;
    }
    copyPart(offset.isNull() ? m_before : m_rest, image, rect);
    const QRect covered = rectAt(offset) & rect;
    if (!offset.isNull() && !covered.isEmpty()) {
        if (image.depth() == 8) {
            putIndexed(image, covered, offset);
        } else {
            putColors(image, covered, offset);
        }
    }
}

void MovedPiece::putIndexed(QImage& image, const QRect& rect, const QPoint& offset)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const uchar* mask = m_mask.constScanLine(y - offset.y());
        const uchar* from = m_before.constScanLine(y - offset.y());
        uchar* to = image.scanLine(y);
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const uchar index = from[x - offset.x()];
            const int alpha = mask[x - offset.x()] > 0 ? qAlpha(m_table[index]) : 0;
            if (alpha == 255) {
                to[x] = index;
            } else if (alpha > 0) {
                to[x] = mixed(index, to[x]);
            }
        }
    }
}

/// The entry nearest to the average of both colours.
quint8 MovedPiece::mixed(quint8 upper, quint8 lower)
{
    const auto key = quint16(upper << 8 | lower);
    const auto known = m_mixtures.constFind(key);
    if (known != m_mixtures.constEnd()) {
        return *known;
    }
    const QRgb a = m_table[upper];
    const QRgb b = m_table[lower];
    const auto half = [](int above, int below) { return below + ((above - below) >> 1); };
    const QColor color(half(qRed(a), qRed(b)), half(qGreen(a), qGreen(b)), half(qBlue(a), qBlue(b)),
                       half(qAlpha(a), qAlpha(b)));
    return *m_mixtures.insert(key, m_palette->index(color));
}

void MovedPiece::putColors(QImage& image, const QRect& rect, const QPoint& offset) const
{
    // Drawn into a copy, and only visible pixels are taken from it: drawing even a transparent
    // pixel slightly changes a half transparent one beneath, because of rounding.
    QImage drawn = image.copy(rect);
    QPainter painter(&drawn);
    painter.drawImage(QPoint(), m_before, rect.translated(-offset));
    painter.end();
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const uchar* mask = m_mask.constScanLine(y - offset.y()) - offset.x();
        const auto* from =
            reinterpret_cast<const QRgb*>(m_before.constScanLine(y - offset.y())) - offset.x();
        const auto* mixture = reinterpret_cast<const QRgb*>(drawn.constScanLine(y - rect.top()));
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (mask[x] > 0 && qAlpha(from[x]) > 0) {
                to[x] = mixture[x - rect.left()];
            }
        }
    }
}

}  // namespace Zorv
