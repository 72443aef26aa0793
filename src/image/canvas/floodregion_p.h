#pragma once

#include <QImage>
#include <QRect>

#include <deque>
#include <vector>

namespace Zorv {

template <class Pixel>
struct Raster;

/// The pixels that a flood fill reaches: those with the seed's value that hang together by their
/// sides. Pixels where the mask is 0 are walls.
class FloodRegion
{
public:
    /// `pixels` and `mask` outlive the region; `pixels` has 8 or 32 bits a pixel, the mask, if
    /// there is one, 8. Nothing behind `size`, which is within both, is reached. The region is
    /// empty if the seed is outside or a wall.
    FloodRegion(const QImage& pixels, const QSize& size, const QImage* mask, const QPoint& seed);

    /// Rectangles around all of it, of 64 rows at most.
    std::vector<QRect> pieces() const;

    /// Writes a value to each pixel of the region, to an image of the size and depth of `pixels`.
    void paint(QImage& pixels, quint32 value) const;

private:
    static constexpr int Side = 64;

    /// The pixels of a tile, a bit each, the left one lowest.
    struct Words
    {
        quint64 open[Side] = {};     ///< of the seed's value, and no wall
        quint64 reached[Side] = {};  ///< the part of it that belongs to the region
        quint64 changed = 0;         ///< a bit for each row with pixels that were not spread yet
    };
    /// A square of the image, smaller at the right and lower edge.
    struct Tile
    {
        int column;
        int row;
        Words* words = nullptr;  ///< null if all pixels are open, or none
        bool isFull = false;     ///< all are open
        bool isReached = false;  ///< of a full one: all belong to the region
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
    std::vector<std::vector<Tile>> m_bands;  ///< a row of tiles each, empty if none was looked at
    std::deque<Words> m_words;
    std::vector<Tile*> m_queue;
};

}  // namespace Zorv
