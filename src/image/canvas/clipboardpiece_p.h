#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

namespace Zorv {

class ImageCanvas;
class ImagePalette;

/// The selection mask of a canvas; if it has another size, a mask with everything selected.
QImage selectionOf(const ImageCanvas& canvas);

/// The rectangle around the selected pixels; empty if there are none.
QRect selectedRect(const QImage& mask);

/// A part of the canvas with its colours and its place (`QImage::offset()`); pixels that are not
/// selected become transparent. An indexed part becomes true colour if no index is free for that.
/// Null if memory is short.
QImage pieceOf(const QImage& part, const QImage& mask, const QPoint& corner,
               const ImagePalette& palette);

/// Sets the selected pixels within a rectangle.
void clearSelected(const QImage& mask, const QRect& part, quint32 pixel, QImage* image);

/// Where to put a piece on an image: at its own place if any of it would be on the image, otherwise
/// at the top left corner.
QRect placeOf(const QImage& piece, const QSize& image);

/// Draws a piece over an image, indexed or true colour. Indices of the image belong to `palette`.
void drawPiece(const QImage& piece, const QRect& place, ImagePalette* palette, QImage* image);

}  // namespace Zorv
