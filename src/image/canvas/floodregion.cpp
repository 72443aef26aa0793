#include "image/canvas/floodregion_p.h"

#include "media/bytescan_p.h"
#include "media/tools/raster_p.h"

#include <algorithm>
#include <cstring>

// The image is divided into tiles of 64 by 64 pixels. A tile is 64 words of 64 bits, one word per
// row. Within a tile the fill spreads along a row by arithmetic on one word, and to the rows above
// and below by an AND. Pixels that cross a side queue the neighbour tile, and a tile is visited
// again only when new pixels enter it. So the fill works on 1 KiB at a time; a walk from pixel to
// pixel through a tall image would touch another page of memory at each step. A tile in which all
// pixels are open needs no words: any pixel that enters reaches all of it.
//
// Pixels are converted to words one band (a row of tiles) at a time, when the fill first gets
// there. Rows are then read in memory order, and a small fill does not read all of a large image.

namespace Zorv {

namespace {

quint64 lowBits(int count)
{
    return count >= 64 ? ~quint64(0) : (quint64(1) << count) - 1;
}

/// One bit for each of 64 pixels, set where the pixel has the value.
quint64 placesOf(const quint8* at, quint32 value)
{
    return ByteScan::placesOf(at, 0xFF, quint8(value));
}

quint64 placesOf(const quint32* at, quint32 value)
{
    quint64 places = 0;
#ifdef __SSE2__
    const __m128i wanted = _mm_set1_epi32(int(value));
    const auto* blocks = reinterpret_cast<const __m128i*>(at);
    for (int i = 0; i < 4; ++i, blocks += 4) {
        __m128i equal[4];
        for (int j = 0; j < 4; ++j) {
            equal[j] = _mm_cmpeq_epi32(_mm_loadu_si128(blocks + j), wanted);
        }
        const __m128i bytes = _mm_packs_epi16(_mm_packs_epi32(equal[0], equal[1]),
                                              _mm_packs_epi32(equal[2], equal[3]));
        places |= quint64(unsigned(_mm_movemask_epi8(bytes))) << (16 * i);
    }
#else
    for (int i = 0; i < 64; ++i) {
        places |= quint64(at[i] == value) << i;
    }
#endif
    return places;
}

/// The same for only the first `count` pixels; nothing after them is read.
template <class Pixel>
quint64 placesOf(const Pixel* at, int count, quint32 value)
{
    if (count >= 64) {
        return placesOf(at, value);
    }
    Pixel copy[64] = {};
    std::copy_n(at, count, copy);
    return placesOf(copy, value) & lowBits(count);
}

/// All runs of `open` that contain a set pixel.
quint64 spreadAlongRow(quint64 pixels, quint64 open)
{
    if (((pixels << 1 | pixels >> 1) & open & ~pixels) == 0) {
        return pixels;
    }
    // Upwards: adding lets a carry run from the lowest set pixel to the end of its run.
    quint64 spread = pixels | (open & ~(open + pixels));
    // Downwards: shift by distances that double.
    for (int distance = 1; distance < 64; distance *= 2) {
        spread |= open & (spread >> distance);
        open &= open >> distance;
    }
    return spread;
}

/// Expands eight bits to eight bytes: 255 for each set bit, 0 for others.
quint64 bytesOf(quint64 bits)
{
    const quint64 spread = (bits & 0xFF) * ByteScan::eachByte(1) & 0x8040201008040201U;
    const quint64 low = ByteScan::eachByte(0x7F);
    const quint64 marks = (((spread & low) + low) | spread) & ~low;
    return (marks >> 7) * 0xFF;
}

void paintRow(quint8* row, int count, quint64 places, quint8 value)
{
    if (count < 64) {
        for (; places; places &= places - 1) {
            row[qCountTrailingZeroBits(places)] = value;
        }
        return;
    }
    // Branchless: mispredicted branches cost more than writing all pixels.
    const quint64 values = ByteScan::eachByte(value);
    for (int i = 0; i < 64; i += 8, places >>= 8) {
        const quint64 marks = bytesOf(places);
        qToLittleEndian((ByteScan::load(row + i) & ~marks) | (values & marks), row + i);
    }
}

void paintRow(quint32* row, int, quint64 places, quint32 value)
{
    while (places) {
        const auto first = qCountTrailingZeroBits(places);
        const quint64 rest = ~(places >> first);
        const auto length = rest ? qCountTrailingZeroBits(rest) : 64;
        std::fill_n(row + first, length, value);
        places &= first + length >= 64 ? 0 : ~quint64(0) << (first + length);
    }
}

template <class Pixel>
void fillRect(Raster<Pixel>& pixels, const QRect& rect, Pixel value)
{
    if (pixels.stride == qsizetype(rect.width()) * qsizetype(sizeof(Pixel))) {
        std::fill_n(pixels.row(rect.top()), rect.width() * rect.height(), value);
        return;
    }
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        std::fill_n(pixels.row(y) + rect.left(), rect.width(), value);
    }
}

/// Whether all pixels of a row have the value.
template <class Pixel>
bool isUniform(const Pixel* row, int count, quint32 value)
{
    return row[0] == Pixel(value) &&
           std::memcmp(row, row + 1, std::size_t(count - 1) * sizeof(Pixel)) == 0;
}

}  // namespace

FloodRegion::FloodRegion(const QImage& pixels, const QSize& size, const QImage* mask,
                         const QPoint& seed)
    : m_pixels(pixels), m_mask(mask), m_size(size), m_columns((m_size.width() + Side - 1) / Side),
      m_rows((m_size.height() + Side - 1) / Side), m_bands(std::size_t(m_rows))
{
    if (QRect(QPoint(), m_size).contains(seed)) {
        const uchar* row = pixels.constScanLine(seed.y());
        m_value =
            pixels.depth() == 8 ? row[seed.x()] : reinterpret_cast<const quint32*>(row)[seed.x()];
        grow(seed);
    }
}

QRect FloodRegion::tileRect(const Tile& tile) const
{
    return QRect(tile.column * Side, tile.row * Side, Side, Side) & QRect(QPoint(), m_size);
}

FloodRegion::Tile& FloodRegion::tileAt(int column, int row)
{
    if (m_bands[std::size_t(row)].empty()) {
        loadBand(row);
    }
    return m_bands[std::size_t(row)][std::size_t(column)];
}

void FloodRegion::loadBand(int row)
{
    const int top = row * Side;
    const int height = std::min(Side, m_size.height() - top);
    std::vector<Tile>& band = m_bands[std::size_t(row)];
    band.reserve(std::size_t(m_columns));
    for (int column = 0; column < m_columns; ++column) {
        band.push_back({column, row});
    }
    if (!m_mask && (m_pixels.depth() == 8 ? isOpenBand<quint8>(top, height)
                                          : isOpenBand<quint32>(top, height))) {
        for (Tile& tile : band) {
            tile.isFull = true;
        }
        return;
    }
    std::vector<quint64> places(std::size_t(m_columns) * std::size_t(height));
    for (int y = 0; y < height; ++y) {
        quint64* at = places.data() + std::size_t(y) * std::size_t(m_columns);
        if (m_pixels.depth() == 8) {
            findOpen<quint8>(top + y, at);
        } else {
            findOpen<quint32>(top + y, at);
        }
        if (m_mask) {
            applyMask(top + y, at);
        }
    }
    makeTiles(band, places, height);
}

template <class Pixel>
bool FloodRegion::isOpenBand(int top, int height) const
{
    const Raster<const Pixel> pixels(m_pixels);
    if (pixels.stride == qsizetype(m_size.width()) * qsizetype(sizeof(Pixel))) {
        return isUniform(pixels.row(top), m_size.width() * height, m_value);
    }
    bool isOpen = true;
    for (int y = top; y < top + height && isOpen; ++y) {
        isOpen = isUniform(pixels.row(y), m_size.width(), m_value);
    }
    return isOpen;
}

template <class Pixel>
void FloodRegion::findOpen(int y, quint64* places) const
{
    const auto* row = reinterpret_cast<const Pixel*>(m_pixels.constScanLine(y));
    const int width = m_size.width();
    if (isUniform(row, width, m_value)) {
        std::fill_n(places, width / Side, ~quint64(0));
        if (width % Side) {
            places[width / Side] = lowBits(width % Side);
        }
        return;
    }
    for (int x = 0; x < width; x += Side) {
        *places++ = placesOf(row + x, width - x, m_value);
    }
}

void FloodRegion::applyMask(int y, quint64* places) const
{
    const uchar* row = m_mask->constScanLine(y);
    const int width = m_size.width();
    if (row[0] != 0 && isUniform(row, width, row[0])) {
        return;
    }
    for (int x = 0; x < width; x += Side) {
        *places++ &= ~placesOf(row + x, width - x, 0);
    }
}

void FloodRegion::makeTiles(std::vector<Tile>& band, const std::vector<quint64>& places, int height)
{
    const auto columns = std::size_t(m_columns);
    std::vector<quint64> all(columns, ~quint64(0));
    std::vector<quint64> any(columns, 0);
    for (const quint64* row = places.data(); row != places.data() + places.size(); row += columns) {
        for (std::size_t i = 0; i < columns; ++i) {
            all[i] &= row[i];
            any[i] |= row[i];
        }
    }
    for (std::size_t i = 0; i < columns; ++i) {
        band[i].isFull = all[i] == lowBits(tileRect(band[i]).width());
        if (any[i] && !band[i].isFull) {
            Words& words = m_words.emplace_back();
            for (int y = 0; y < height; ++y) {
                words.open[y] = places[std::size_t(y) * columns + i];
            }
            band[i].words = &words;
        }
    }
}

void FloodRegion::grow(const QPoint& seed)
{
    enter(tileAt(seed.x() / Side, seed.y() / Side), seed.y() % Side,
          quint64(1) << (seed.x() % Side));
    std::vector<Tile*> turn;
    while (!m_queue.empty()) {
        turn.swap(m_queue);
        for (Tile* tile : turn) {
            tile->isQueued = false;
            spreadBeyond(*tile);
        }
        turn.clear();
    }
}

/// Spreads the pixels that entered a tile, then passes them on across its four sides.
void FloodRegion::spreadBeyond(Tile& tile)
{
    const quint64 all = ~quint64(0);
    const Sides sides = tile.isFull ? Sides{all, all} : spreadWithin(*tile.words);
    const quint64 top = tile.isFull ? all : tile.words->reached[0];
    const quint64 bottom = tile.isFull ? all : tile.words->reached[Side - 1];
    if (tile.row > 0 && top) {
        enter(tileAt(tile.column, tile.row - 1), Side - 1, top);
    }
    if (tile.row + 1 < m_rows && bottom) {
        enter(tileAt(tile.column, tile.row + 1), 0, bottom);
    }
    if (tile.column > 0 && sides.left) {
        enterColumn(tileAt(tile.column - 1, tile.row), sides.left, Side - 1);
    }
    if (tile.column + 1 < m_columns && sides.right) {
        enterColumn(tileAt(tile.column + 1, tile.row), sides.right, 0);
    }
}

void FloodRegion::enter(Tile& tile, int row, quint64 pixels)
{
    if (tile.isFull) {
        if (!tile.isReached) {
            tile.isReached = true;
            queue(tile);
        }
    } else if (Words* words = tile.words) {
        const quint64 added = pixels & words->open[row] & ~words->reached[row];
        if (added) {
            words->reached[row] |= added;
            words->changed |= quint64(1) << row;
            queue(tile);
        }
    }
}

void FloodRegion::enterColumn(Tile& tile, quint64 rows, int bit)
{
    if (tile.isFull) {
        enter(tile, 0, quint64(1) << bit);
        return;
    }
    for (; rows; rows &= rows - 1) {
        enter(tile, int(qCountTrailingZeroBits(rows)), quint64(1) << bit);
    }
}

void FloodRegion::queue(Tile& tile)
{
    if (!tile.isQueued) {
        tile.isQueued = true;
        m_queue.push_back(&tile);
    }
}

/// Returns one bit for each row with pixels to pass on at the left and the right side.
FloodRegion::Sides FloodRegion::spreadWithin(Words& words)
{
    Sides sides;
    while (words.changed) {
        const int row = int(qCountTrailingZeroBits(words.changed));
        spreadFrom(words, row, 1, sides);
        if (row > 0 && (words.changed >> (row - 1) & 1)) {
            spreadFrom(words, row - 1, -1, sides);
        }
    }
    return sides;
}

/// Spreads along a row, then from row to row in one direction while that reaches more.
void FloodRegion::spreadFrom(Words& words, int row, int step, Sides& sides)
{
    quint64 changed = words.changed;
    quint64 pixels = words.reached[row];
    while (true) {
        pixels = spreadAlongRow(pixels, words.open[row]);
        words.reached[row] = pixels;
        changed &= ~(quint64(1) << row);
        sides.left |= (pixels & 1) << row;
        sides.right |= (pixels >> 63) << row;
        const int behind = row - step;
        if (behind >= 0 && behind < Side) {
            const quint64 added = pixels & words.open[behind] & ~words.reached[behind];
            words.reached[behind] |= added;
            changed |= quint64(added != 0) << behind;
        }
        row += step;
        if (row < 0 || row >= Side) {
            break;
        }
        const quint64 reached = words.reached[row];
        const quint64 added = pixels & words.open[row] & ~reached;
        if (!added && !(changed >> row & 1)) {
            break;
        }
        pixels = reached | added;
    }
    words.changed = changed;
}

std::vector<QRect> FloodRegion::pieces() const
{
    std::vector<QRect> pieces;
    for (const std::vector<Tile>& band : m_bands) {
        QRect piece;
        for (const Tile& tile : band) {
            const QRect rect = tileRect(tile);
            if (tile.isReached) {
                piece |= rect;
            } else if (tile.words) {
                piece |= reachedRect(*tile.words).translated(rect.topLeft());
            }
        }
        if (!piece.isEmpty()) {
            pieces.push_back(piece);
        }
    }
    return pieces;
}

QRect FloodRegion::reachedRect(const Words& words)
{
    quint64 columns = 0;
    int top = Side;
    int bottom = -1;
    for (int row = 0; row < Side; ++row) {
        if (words.reached[row]) {
            columns |= words.reached[row];
            top = std::min(top, row);
            bottom = row;
        }
    }
    if (!columns) {
        return {};
    }
    const int left = int(qCountTrailingZeroBits(columns));
    const int right = Side - 1 - int(qCountLeadingZeroBits(columns));
    return {QPoint(left, top), QPoint(right, bottom)};
}

template <class Pixel>
void FloodRegion::paintBand(const std::vector<Tile>& band, Raster<Pixel>& pixels, Pixel value) const
{
    for (std::size_t first = 0; first < band.size();) {
        // Neighbouring full tiles are filled as one rectangle.
        std::size_t end = first + 1;
        while (band[first].isReached && end < band.size() && band[end].isReached) {
            ++end;
        }
        const QRect rect = tileRect(band[first]) | tileRect(band[end - 1]);
        const Words* words = band[first].words;
        if (band[first].isReached) {
            fillRect(pixels, rect, value);
        }
        for (int y = 0; y < rect.height() && words; ++y) {
            Pixel* row = pixels.row(rect.top() + y) + rect.left();
            if (words->reached[y] == ~quint64(0)) {
                std::fill_n(row, rect.width(), value);
            } else if (words->reached[y]) {
                paintRow(row, rect.width(), words->reached[y], value);
            }
        }
        first = end;
    }
}

void FloodRegion::paint(QImage& pixels, quint32 value) const
{
    Raster<quint8> bytes(pixels);
    Raster<quint32> colors(pixels);
    for (const std::vector<Tile>& band : m_bands) {
        if (pixels.depth() == 8) {
            paintBand(band, bytes, quint8(value));
        } else {
            paintBand(band, colors, value);
        }
    }
}

}  // namespace Zorv
