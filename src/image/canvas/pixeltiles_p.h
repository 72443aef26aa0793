#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

#include <map>

namespace Zorv {

/// Saved copies of some tiles of an image, for undo.
///
/// A tile has 64 by 64 pixels, fewer at the right and bottom border. Tiles are packed (compressed)
/// one by one; packed or not, they can be exchanged with the tiles of the image.
class PixelTiles
{
public:
    static constexpr int Side = 64;

    PixelTiles() = default;

    /// For images with the size and format of `model`; no tile is saved yet.
    explicit PixelTiles(const QImage& model);

    /// Saves the tiles that a rectangle touches, except those saved already.
    void save(const QImage& image, const QRect& rect);

    /// Saves the tiles of `before` that differ in `after`; all of them if size or format differ.
    static PixelTiles differences(const QImage& before, const QImage& after);

    /// Whether both are for images of the same size and format.
    bool isLike(const PixelTiles& other) const;

    /// Drops the saved tiles that equal the image.
    void dropEqual(const QImage& image);

    /// Adds the tiles of `later` that are not saved here. A tile saved here is older and stays.
    void append(const PixelTiles& later);

    /// Writes the saved tiles to the image and saves what it had there instead. An image of another
    /// size or format is exchanged as a whole. Returns the rectangle that has changed.
    QRect exchange(QImage& image);

    /// See `ImageUndoCommand`.
    qint64 byteSize() const;
    qint64 pack(qint64 limit);

    bool isEmpty() const;

private:
    struct Tile
    {
        QByteArray bytes;
        bool packed = false;
        bool tried = false;  ///< packing was tried

        QByteArray pixels() const;
    };

    bool fits(const QImage& image) const;
    int columns() const;
    QRect rectOf(int number) const;
    QByteArray read(const QImage& image, int number) const;
    void write(QImage& image, int number, const QByteArray& bytes) const;
    bool equals(const QImage& image, int number, const QByteArray& bytes) const;
    template <class Function>
    void forTilesIn(const QRect& rect, Function function) const;

    QSize m_size;
    QImage::Format m_format = QImage::Format_Invalid;
    QVector<QRgb> m_table;
    int m_pixelBytes = 1;
    std::map<int, Tile> m_tiles;
};

}  // namespace Zorv
