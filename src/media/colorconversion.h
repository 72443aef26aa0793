#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

namespace Zorv {

/// An image of `Format_ARGB32` with the colours of an indexed one, alpha
/// included. An index behind the end of the colour table gives 0.
ZORV_EXPORT QImage convert8To32(QImage& image);

/// The index of the entry nearest to a colour, the lowest one among equals.
///
/// The distance is the squared one over red, green and blue, weighted by the
/// colour's alpha, plus the square of the difference in alpha: a transparent
/// colour goes to the first transparent entry, whatever its colour.
/// `palette` has 256 entries.
ZORV_EXPORT unsigned char nearestColor(BGRA color, const RGBA* palette);

/// Expands a palette into the opaque `QRgb` values of a colour table.
ZORV_EXPORT void RGBVectorToRgbVector(const QVector<RGB>& from, QVector<unsigned int>& to);

/// The same for 256 entries of `RGBA`; alpha is kept.
ZORV_EXPORT void RGBPaletteToRgbVector(const RGBA* from, QVector<unsigned int>& to);

}  // namespace Zorv
