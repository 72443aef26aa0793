#pragma once

#include <QImage>
#include <QRect>

#include <deque>
#include <vector>

namespace Zorv {

template <class Pixel>
struct Raster;

/// The pixels a flood fill reaches: pixels equal to the seed that are connected by their sides.
/// Pixels where the mask is 0 are walls.
class FloodRegion
{
public:
    /// `pixels` and `mask` must outlive the region; `pixels` has 8 or 32 bits per pixel, the mask,
    /// if given, 8. Nothing outside `size`, which is within both, is reached. The region is empty
    /// if the seed is outside or a wall.
    FloodRegion(const QImage& pixels, const QSize& size, const QImage* mask, const QPoint& seed);

    /// Rectangles that together contain the region, each of at most 64 rows.
    std::vector<QRect> pieces() const;

    /// Writes a value to each pixel of the region, in an image with the size and depth of `pixels`.
    void paint(QImage& pixels, quint32 value) const;

private:
    static constexpr int Side = 64;

    /// The pixels of a tile, one bit each, the leftmost pixel in the lowest bit.
    struct Words
    {
        quint64 open[Side] = {};     ///< equal to the seed, and no wall
        quint64 reached[Side] = {};  ///< the part of `open` that belongs to the region
        quint64 changed = 0;         ///< one bit per row whose new pixels have not been spread yet
    };
    /// A square of the image, smaller at the right and bottom edge.
    struct Tile
    {
        int column;
        int row;
        Words* words = nullptr;  ///< null if all pixels are open, or none is
        bool isFull = false;     ///< all pixels are open
        bool isReached = false;  ///< for a full tile: all its pixels belong to the region
        bool isQueued = false;
    };
    struct Sides
    {
        quint64 left = 0;
        quint64 right = 0;
    };

    Tile& tileAt(int column, int row);
    QRect tileRect(const Tile& tile) const;
    void loadBand(int row);
    template <class Pixel>
    bool isOpenBand(int top, int height) const;
    template <class Pixel>
    void findOpen(int y, quint64* places) const;
    void applyMask(int y, quint64* places) const;
    void makeTiles(std::vector<Tile>& band, const std::vector<quint64>& places, int height);

    void grow(const QPoint& seed);
    void spreadBeyond(Tile& tile);
    void enter(Tile& tile, int row, quint64 pixels);
    void enterColumn(Tile& tile, quint64 rows, int bit);
    void queue(Tile& tile);

    static QRect reachedRect(const Words& words);
    static Sides spreadWithin(Words& words);
    static void spreadFrom(Words& words, int row, int step, Sides& sides);
    template <class Pixel>
    void paintBand(const std::vector<Tile>& band, Raster<Pixel>& pixels, Pixel value) const;

    const QImage& m_pixels;
    const QImage* m_mask;
    quint32 m_value = 0;
    QSize m_size;
    int m_columns = 0;
    int m_rows = 0;
    std::vector<std::vector<Tile>> m_bands;  ///< one row of tiles each; empty until it is loaded
    std::deque<Words> m_words;
    std::vector<Tile*> m_queue;
};

}  // namespace Zorv
