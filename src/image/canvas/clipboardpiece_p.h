#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

namespace Zorv {

class ImageCanvas;
class ImagePalette;

/// The mask of a canvas; all is selected if it has another size.
QImage selectionOf(const ImageCanvas& canvas);

/// The rectangle around what is selected; empty if nothing is.
QRect selectedRect(const QImage& mask);

/// A part of the canvas with its colours and its place (`QImage::offset()`), where what the mask
/// does not select is transparent. An indexed one becomes true colour if no index is left for that.
/// Null if memory is short.
QImage pieceOf(const QImage& part, const QImage& mask, const QPoint& corner,
               const ImagePalette& palette);

/// Sets the selected pixels within a rectangle.
void clearSelected(const QImage& mask, const QRect& part, quint32 pixel, QImage* image);

/// Where a piece comes to stand on an image: at its own place, if anything of it is on the image.
QRect placeOf(const QImage& piece, const QSize& image);

/// Draws a piece above an image, indexed or of true colour, whose indices are of `palette`.
void drawPiece(const QImage& piece, const QRect& place, ImagePalette* palette, QImage* image);

}  // namespace Zorv
