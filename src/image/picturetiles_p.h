#pragma once

#include "image/imagerenderer.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <vector>

class QPainter;

namespace Zorv {

/// The flattened picture of a canvas as drawn on the screen: checkerboard, onion skins, layers, and
/// the darkening of the selection mask.
///
/// It is cached in tiles, which are created when they are first shown. A change marks a rectangle
/// as dirty; the next drawing refreshes its visible part. Tiles are small enough for any GL to
/// draw.
class PictureTiles
{
public:
    static constexpr int Side = 256;

    explicit PictureTiles(const ImageCanvas* canvas);

    /// Drops all tiles.
    void reset(const QSize& size);
    QSize size() const { return m_size; }

    void setSkins(const std::vector<ImageRenderer::Skin>& skins);
    void setDirty(const QRect& rect);

    /// What drawing does with an outdated tile.
    enum Freshness { Refreshed, AsTheyAre };

    /// Draws the tiles that touch a part of the picture; `corner` is where the picture's corner
    /// goes.
    void draw(QPainter& painter, const QPointF& corner, double zoom, const QRect& part,
              Freshness freshness);

    /// Ends a painting. If there are too many tiles, drops all that were not drawn in it.
    void trim();

private:
    struct Tile
    {
        QImage image;
        QRect dirty;
        unsigned drawnIn = 0;
    };

    Tile& tileAt(int column, int row);
    QRect tileRect(int column, int row) const;
    void refresh(Tile& tile, const QRect& place);
    void paint(QPainter& painter, const QRect& rect) const;
    void paintLayers(QPainter& painter, const QRect& rect) const;

    const ImageCanvas* m_canvas;
    std::vector<ImageRenderer::Skin> m_skins;
    QSize m_size = QSize(0, 0);
    int m_columns = 0;
    std::vector<Tile> m_tiles;
    unsigned m_painting = 1;
    int m_made = 0;
};

}  // namespace Zorv
