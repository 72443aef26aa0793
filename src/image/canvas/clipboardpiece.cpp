#include "image/canvas/clipboardpiece_p.h"

#include "image/canvas/alikepalette_p.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageselection.h"
#include "media/tools/raster_p.h"

#include <QColor>

#include <algorithm>
#include <array>

// Copying keeps an indexed piece indexed where possible. If some pixels of the rectangle are not
// selected it needs a transparent entry: the palette's own one, or else an index that the piece
// does not use. Only without either it becomes true colour.
//
// Pasting an indexed piece onto indices maps its colour table once: an index with the same colour
// in both palettes stays, any other takes the nearest entry. True colours are mapped pixel by
// pixel.

namespace Zorv {

namespace {

/// Sets the pixels that the mask selects, or, with `isSelected` false, all others.
template <class Pixel>
void fillWhere(bool isSelected, const QImage& mask, const QPoint& corner, Pixel pixel,
               const QRect& part, QImage* image)
{
    const Raster<Pixel> to(*image);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const uchar* const by = mask.constScanLine(corner.y() + y) + corner.x();
        Pixel* const row = to.row(y);
        for (int x = part.left(); x <= part.right(); ++x) {
            row[x] = (by[x] > 0) == isSelected ? pixel : row[x];
        }
    }
}

int unusedIndex(const QImage& indexed)
{
    std::array<bool, 256> isUsed = {};
    const Raster<const quint8> pixels(indexed);
    for (int y = 0; y < pixels.height; ++y) {
        const quint8* const row = pixels.row(y);
        std::for_each(row, row + pixels.width, [&isUsed](quint8 index) { isUsed[index] = true; });
    }
    const auto unused = std::find(isUsed.begin(), isUsed.end(), false);
    return unused == isUsed.end() ? -1 : int(unused - isUsed.begin());
}

bool isAllSelected(const QImage& mask, const QRect& box)
{
    for (int y = box.top(); y <= box.bottom(); ++y) {
        const uchar* const row = mask.constScanLine(y) + box.left();
        if (std::find(row, row + box.width(), 0) != row + box.width()) {
            return false;
        }
    }
    return true;
}

bool isClear(QRgb color)
{
    return qAlpha(color) == 0;
}

/// The palette's index for each index of a piece; -1 for a transparent one.
std::array<int, 256> indexMap(const QVector<QRgb>& table, ImagePalette* palette)
{
    const AlikePalette alike(palette);
    std::array<int, 256> map;
    for (int i = 0; i < 256; ++i) {
        const QRgb color = table.value(i, 0);
        const bool isSame = color == palette->color(quint8(i));
        map[std::size_t(i)] = isClear(color) ? -1
                              : isSame       ? i
                                             : alike.index(QColor::fromRgba(color));
    }
    return map;
}

int mixed(int top, int topAlpha, int below, int belowAlpha, int alpha)
{
    return (top * topAlpha * 255 + below * belowAlpha * (255 - topAlpha) + alpha / 2) / alpha;
}

QRgb over(QRgb top, QRgb below)
{
    if (qAlpha(top) == 255 || isClear(below)) {
        return isClear(top) ? below : top;
    }
    const int a = qAlpha(top);
    const int b = qAlpha(below);
    const int alpha = a * 255 + b * (255 - a);  // in units of 1 / (255 * 255)
    return alpha == 0 ? 0
                      : qRgba(mixed(qRed(top), a, qRed(below), b, alpha),
                              mixed(qGreen(top), a, qGreen(below), b, alpha),
                              mixed(qBlue(top), a, qBlue(below), b, alpha), (alpha + 127) / 255);
}

/// `change` computes the new pixel of the image from the pixels of piece and image.
template <class From, class To, class Change>
void combine(const QImage& piece, const QPoint& corner, QImage* image, Change change)
{
    const Raster<const From> from(piece);
    const Raster<To> to(*image);
    for (int y = 0; y < from.height; ++y) {
        const From* const source = from.row(y);
        To* const target = to.row(corner.y() + y) + corner.x();
        std::transform(source, source + from.width, target, target, change);
    }
}

void drawIndexed(const QImage& piece, const QPoint& corner, ImagePalette* palette, QImage* image)
{
    if (isIndexed(piece)) {
        const std::array<int, 256> map = indexMap(piece.colorTable(), palette);
        combine<quint8, quint8>(piece, corner, image, [&map](quint8 top, quint8 below) {
            return map[top] < 0 ? below : quint8(map[top]);
        });
        return;
    }
    const AlikePalette alike(palette);
    PaletteColors entries(alike);
    combine<QRgb, quint8>(piece, corner, image, [&entries](QRgb top, quint8 below) {
        return isClear(top) ? below : entries.nearest(top);
    });
}

}  // namespace

QImage selectionOf(const ImageCanvas& canvas)
{
    QImage mask = canvas.selection()->mask();
    if (mask.size() != canvas.size()) {
        mask = QImage(canvas.size(), QImage::Format_Indexed8);
        mask.fill(1);
    }
    return mask;
}

QRect selectedRect(const QImage& mask)
{
    QRect around;
    for (int y = 0; y < mask.height(); ++y) {
        const uchar* const row = mask.constScanLine(y);
        const uchar* const end = row + mask.width();
        const uchar* const first = std::find_if(row, end, [](uchar pixel) { return pixel > 0; });
        if (first != end) {
            const uchar* last = end - 1;
            while (*last == 0) {
                --last;
            }
            around |= QRect(QPoint(int(first - row), y), QPoint(int(last - row), y));
        }
    }
    return around;
}

QImage pieceOf(const QImage& part, const QImage& mask, const QPoint& corner,
               const ImagePalette& palette)
{
    QImage piece = part;
    const QRect box(corner, piece.size());
    const bool isWhole = isAllSelected(mask, box);
    if (isIndexed(piece)) {
        QVector<QRgb> table = palette.toRgbPal();
        int clear = PaletteColors(palette).transparent();
        if (!isWhole && clear < 0) {
            clear = unusedIndex(piece);
        }
        if (isWhole || clear >= 0) {
            if (!isWhole) {
                table[clear] &= RGB_MASK;
                fillWhere(false, mask, corner, quint8(clear), piece.rect(), &piece);
            }
            piece.setColorTable(table);
            piece.setOffset(corner);
            return piece;
        }
        piece = toColors(piece, palette);
    }
    if (!isWhole && !piece.isNull()) {
        fillWhere(false, mask, corner, quint32(0), piece.rect(), &piece);
    }
    piece.setOffset(corner);
    return piece;
}

void clearSelected(const QImage& mask, const QRect& part, quint32 pixel, QImage* image)
{
    if (isIndexed(*image)) {
        fillWhere(true, mask, QPoint(), quint8(pixel), part, image);
    } else {
        fillWhere(true, mask, QPoint(), pixel, part, image);
    }
}

QRect placeOf(const QImage& piece, const QSize& image)
{
    // The place comes from a file, so it can be any number.
    const QPoint corner = piece.offset();
    const bool isSeen = corner.x() < image.width() && corner.y() < image.height() &&
                        corner.x() > -piece.width() && corner.y() > -piece.height();
    return {isSeen ? corner : QPoint(), piece.size()};
}

void drawPiece(const QImage& piece, const QRect& place, ImagePalette* palette, QImage* image)
{
    const QRect seen = place & image->rect();
    if (seen.isEmpty()) {
        return;
    }
    const QImage part = piece.copy(seen.translated(-place.topLeft()));
    if (isIndexed(*image)) {
        drawIndexed(part, seen.topLeft(), palette, image);
    } else {
        combine<QRgb, QRgb>(part.convertToFormat(QImage::Format_ARGB32), seen.topLeft(), image,
                            over);
    }
}

}  // namespace Zorv
