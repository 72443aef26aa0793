#include "image/canvas/pixeltiles_p.h"

#include <algorithm>
#include <cstring>
#include <utility>

// Tiles are kept in a map from tile number (row by row) to the bytes of the tile without padding.
// `exchange()` swaps them with the image: after an undo the same object holds what redo needs. A
// packed tile is unpacked by that, and the new one is not packed before the next `pack()`.

namespace Zorv {

namespace {

// The memory of a tile in addition to its pixels: a map node and an array header.
const qint64 TileOverhead = 112;

// The fastest level: packed tiles are seldom needed, but an undo waits for them.
const int PackLevel = 1;

}  // namespace

QByteArray PixelTiles::Tile::pixels() const
{
    return packed ? qUncompress(bytes) : bytes;
}

PixelTiles::PixelTiles(const QImage& model)
    : m_size(model.size()), m_format(model.format()), m_table(model.colorTable()),
      m_pixelBytes(std::max(model.depth() / 8, 1))
{
}

bool PixelTiles::fits(const QImage& image) const
{
    return image.size() == m_size && image.format() == m_format;
}

int PixelTiles::columns() const
{
    return (m_size.width() + Side - 1) / Side;
}

QRect PixelTiles::rectOf(int number) const
{
    const QPoint corner(number % columns() * Side, number / columns() * Side);
    return QRect(corner, QSize(Side, Side)) & QRect(QPoint(), m_size);
}

QByteArray PixelTiles::read(const QImage& image, int number) const
{
    const QRect rect = rectOf(number);
    const int length = rect.width() * m_pixelBytes;
    QByteArray bytes(length * rect.height(), Qt::Uninitialized);
    for (int y = 0; y < rect.height(); ++y) {
        std::memcpy(bytes.data() + y * length,
                    image.constScanLine(rect.top() + y) + rect.left() * m_pixelBytes,
                    std::size_t(length));
    }
    return bytes;
}

void PixelTiles::write(QImage& image, int number, const QByteArray& bytes) const
{
    const QRect rect = rectOf(number);
    const int length = rect.width() * m_pixelBytes;
    for (int y = 0; y < rect.height(); ++y) {
        std::memcpy(image.scanLine(rect.top() + y) + rect.left() * m_pixelBytes,
                    bytes.constData() + y * length, std::size_t(length));
    }
}

bool PixelTiles::equals(const QImage& image, int number, const QByteArray& bytes) const
{
    const QRect rect = rectOf(number);
    const int length = rect.width() * m_pixelBytes;
    for (int y = 0; y < rect.height(); ++y) {
        if (std::memcmp(image.constScanLine(rect.top() + y) + rect.left() * m_pixelBytes,
                        bytes.constData() + y * length, std::size_t(length)) != 0) {
            return false;
        }
    }
    return true;
}

template <class Function>
void PixelTiles::forTilesIn(const QRect& rect, Function function) const
{
    const QRect inside = rect & QRect(QPoint(), m_size);
    if (inside.isEmpty()) {
        return;
    }
    for (int row = inside.top() / Side; row <= inside.bottom() / Side; ++row) {
        for (int column = inside.left() / Side; column <= inside.right() / Side; ++column) {
            function(row * columns() + column);
        }
    }
}

void PixelTiles::save(const QImage& image, const QRect& rect)
{
    if (!fits(image)) {
        return;
    }
    forTilesIn(rect, [this, &image](int number) {
        const auto [place, isNew] = m_tiles.try_emplace(number);
        if (isNew) {
            place->second.bytes = read(image, number);
        }
    });
}

PixelTiles PixelTiles::differences(const QImage& before, const QImage& after)
{
    PixelTiles tiles(before);
    if (!tiles.fits(after)) {
        tiles.save(before, before.rect());
        return tiles;
    }
    if (before.constBits() == after.constBits()) {
        return tiles;
    }
    tiles.forTilesIn(before.rect(), [&](int number) {
        const QRect rect = tiles.rectOf(number);
        const std::size_t length = std::size_t(rect.width() * tiles.m_pixelBytes);
        const int left = rect.left() * tiles.m_pixelBytes;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            if (std::memcmp(before.constScanLine(y) + left, after.constScanLine(y) + left,
                            length) != 0) {
                tiles.m_tiles[number].bytes = tiles.read(before, number);
                return;
            }
        }
    });
    return tiles;
}

bool PixelTiles::isLike(const PixelTiles& other) const
{
    return other.m_size == m_size && other.m_format == m_format;
}

void PixelTiles::dropEqual(const QImage& image)
{
    if (!fits(image)) {
        return;
    }
    for (auto tile = m_tiles.begin(); tile != m_tiles.end();) {
        const bool same = equals(image, tile->first, tile->second.pixels());
        tile = same ? m_tiles.erase(tile) : std::next(tile);
    }
}

void PixelTiles::append(const PixelTiles& later)
{
    m_tiles.insert(later.m_tiles.begin(), later.m_tiles.end());
}

QRect PixelTiles::exchange(QImage& image)
{
    if (!fits(image)) {
        PixelTiles other(image);
        other.save(image, image.rect());
        QImage whole(m_size, m_format);
        if (!m_table.isEmpty()) {
            whole.setColorTable(m_table);
        }
        for (const auto& [number, tile] : m_tiles) {
            write(whole, number, tile.pixels());
        }
        image = whole;
        *this = std::move(other);
        return image.rect();
    }
    QRect changed;
    for (auto& [number, tile] : m_tiles) {
        const QByteArray now = read(image, number);
        write(image, number, tile.pixels());
        tile = {now};
        changed |= rectOf(number);
    }
    return changed;
}

qint64 PixelTiles::byteSize() const
{
    qint64 sum = 0;
    for (const auto& [number, tile] : m_tiles) {
        sum += tile.bytes.size() + TileOverhead;
    }
    return sum;
}

qint64 PixelTiles::pack(qint64 limit)
{
    qint64 done = 0;
    for (auto& [number, tile] : m_tiles) {
        if (done >= limit) {
            break;
        }
        if (tile.packed || tile.tried) {
            continue;
        }
        done += tile.bytes.size();
        const QByteArray packed = qCompress(tile.bytes, PackLevel);
        if (packed.size() < tile.bytes.size()) {
            tile.bytes = packed;
            tile.packed = true;
        }
        tile.tried = true;
    }
    return done;
}

bool PixelTiles::isEmpty() const
{
    return m_tiles.empty();
}

}  // namespace Zorv
