#pragma once

#include "image/imagerenderer.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <vector>

class QPainter;

namespace Zorv {

/// The flattened picture of a canvas: layers on skins on a checkerboard, under the mask.
///
/// It is kept in tiles, each made when it is shown first. A change marks a rectangle, of which what
/// is shown is made anew with the next drawing. A tile is small enough for any GL to draw it.
class PictureTiles
{
public:
    static constexpr int Side = 256;

    explicit PictureTiles(const ImageCanvas* canvas);

    /// Forgets all pixels.
    void reset(const QSize& size);
    QSize size() const { return m_size; }

    void setSkins(const std::vector<ImageRenderer::Skin>& skins);
    void setDirty(const QRect& rect);

    /// What a drawing may do with a tile that is not as the canvas is.
    enum Freshness { Refreshed, AsTheyAre };

    /// Draws the tiles that a part of the picture lies in, with the picture's corner at `corner`.
    void draw(QPainter& painter, const QPointF& corner, double zoom, const QRect& part,
              Freshness freshness);

    /// Ends a painting: if there are too many tiles, those that were not drawn in it go.
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
