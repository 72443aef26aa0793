#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

#include <map>

namespace Zorv {

/// Some of the tiles of an image, as they were when they were saved.
///
/// A tile has 64 by 64 pixels, less at the right and lower border. Tiles can be packed, each on its
/// own; packed or not, they are exchanged with those of the image.
class PixelTiles
{
public:
    static constexpr int Side = 64;

    PixelTiles() = default;

    /// For images of the size and form of this one; no tile is saved.
    explicit PixelTiles(const QImage& model);

    /// Saves the tiles that a rectangle touches, but for those that are saved already.
    void save(const QImage& image, const QRect& rect);

    /// The tiles of `before` in which `after` is different, all of them if it has another size or
    /// form.
    static PixelTiles differences(const QImage& before, const QImage& after);

    /// Whether both are of images of the same size and form.
    bool isLike(const PixelTiles& other) const;

    /// Drops the tiles that are as they are in the image.
    void dropEqual(const QImage& image);

    /// Adds the tiles that are not saved here: those of `later` were saved behind these.
    void append(const PixelTiles& later);

    /// Gives the image the saved tiles and keeps those that it had; an image of another size or
    /// form is exchanged as a whole. The rectangle around what is different.
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
        bool tried = false;  ///< packing was of no use

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
