// The screen shows few pixels of a large canvas, and a stroke changes few of those. So each tile is
// a picture of its own, which GL keeps as a texture until it is painted on. Layers are merged only
// in the changed rectangle.

#include "image/picturetiles_p.h"

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageselection.h"

#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

/// 64 MiB of tiles.
const int KeptTiles = 256;

/// Squares of 8 by 8 pixels, the top left one grey.
const QImage& checkerboard()
{
    static const QImage image = [] {
        QImage squares(16, 16, QImage::Format_RGB32);
        squares.fill(Qt::white);
        QPainter painter(&squares);
        painter.fillRect(0, 0, 8, 8, Qt::lightGray);
        painter.fillRect(8, 8, 8, 8, Qt::lightGray);
        return squares;
    }();
    return image;
}

}  // namespace

PictureTiles::PictureTiles(const ImageCanvas* canvas) : m_canvas(canvas) {}

void PictureTiles::reset(const QSize& size)
{
    m_size = size;
    m_columns = (size.width() + Side - 1) / Side;
    const int rows = (size.height() + Side - 1) / Side;
    m_tiles.clear();
    m_tiles.resize(std::size_t(m_columns) * std::size_t(rows));
    m_made = 0;
}

void PictureTiles::setSkins(const std::vector<ImageRenderer::Skin>& skins)
{
    m_skins = skins;
    setDirty(QRect(QPoint(), m_size));
}

PictureTiles::Tile& PictureTiles::tileAt(int column, int row)
{
    return m_tiles[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
}

QRect PictureTiles::tileRect(int column, int row) const
{
    return QRect(column * Side, row * Side, Side, Side) & QRect(QPoint(), m_size);
}

void PictureTiles::setDirty(const QRect& rect)
{
    const QRect inside = rect & QRect(QPoint(), m_size);
    if (inside.isEmpty()) {
        return;
    }
    for (int row = inside.top() / Side; row <= inside.bottom() / Side; ++row) {
        for (int column = inside.left() / Side; column <= inside.right() / Side; ++column) {
            tileAt(column, row).dirty |= inside & tileRect(column, row);
        }
    }
}

void PictureTiles::draw(QPainter& painter, const QPointF& corner, double zoom, const QRect& part,
                        Freshness freshness)
{
    const QRect inside = part & QRect(QPoint(), m_size);
    if (inside.isEmpty()) {
        return;
    }
    for (int row = inside.top() / Side; row <= inside.bottom() / Side; ++row) {
        for (int column = inside.left() / Side; column <= inside.right() / Side; ++column) {
            Tile& tile = tileAt(column, row);
            const QRect place = tileRect(column, row);
            tile.drawnIn = m_painting;
            if (freshness == Refreshed) {
                refresh(tile, place);
            }
            if (!tile.image.isNull()) {
                painter.drawImage(
                    QRectF(QPointF(place.topLeft()) * zoom + corner, QSizeF(place.size()) * zoom),
                    tile.image);
            }
        }
    }
}

void PictureTiles::trim()
{
    if (m_made > KeptTiles) {
        for (Tile& tile : m_tiles) {
            if (tile.drawnIn != m_painting && !tile.image.isNull()) {
                tile.image = QImage();
                --m_made;
            }
        }
    }
    ++m_painting;
}

void PictureTiles::refresh(Tile& tile, const QRect& place)
{
    if (tile.image.isNull()) {
        tile.image = QImage(place.size(), QImage::Format_RGB32);
        if (tile.image.isNull()) {
            return;
        }
        tile.dirty = place;
        ++m_made;
    }
    if (tile.dirty.isEmpty()) {
        return;
    }
    QPainter painter(&tile.image);
    painter.translate(-place.topLeft());
    painter.setClipRect(tile.dirty);
    paint(painter, tile.dirty);
    tile.dirty = QRect();
}

void PictureTiles::paint(QPainter& painter, const QRect& rect) const
{
    painter.fillRect(rect, QBrush(checkerboard()));
    for (const ImageRenderer::Skin& skin : m_skins) {
        painter.setOpacity(std::clamp(skin.opacity, 0.0, 1.0));
        painter.drawImage(skin.offset, skin.image);
    }
    paintLayers(painter, rect);
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QImage& mask = m_canvas->selection()->mask();
    const QRect masked = rect & mask.rect();
    if (!masked.isEmpty()) {
        painter.drawImage(masked.topLeft(), mask.copy(masked));
    }
}

void PictureTiles::paintLayers(QPainter& painter, const QRect& rect) const
{
    painter.setOpacity(1);
    if (m_canvas->format() == ImageCanvas::IndexedFormat) {
        painter.drawImage(rect.topLeft(), m_canvas->mergePart(rect));
        return;
    }
    for (unsigned i = m_canvas->layers()->count(); i-- > 0;) {
        const ImageLayer* const layer = m_canvas->layers()->at(i);
        if (layer->isVisible()) {
            layer->render(painter);
        }
    }
}

}  // namespace Zorv
