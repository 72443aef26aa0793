#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

namespace Zorv {

/// Converts an indexed image to `Format_ARGB32`, alpha included. An index beyond the colour table
/// becomes 0.
ZORV_EXPORT QImage convert8To32(QImage& image);

/// The index of the entry nearest to a colour; the lowest index among equals.
///
/// The distance is the squared distance in red, green and blue, weighted by the colour's alpha,
/// plus the squared difference in alpha. A transparent colour therefore matches the first
/// transparent entry, whatever its colour. `palette` has 256 entries.
ZORV_EXPORT unsigned char nearestColor(BGRA color, const RGBA* palette);

/// Converts a palette to the opaque `QRgb` values of a colour table.
ZORV_EXPORT void RGBVectorToRgbVector(const QVector<RGB>& from, QVector<unsigned int>& to);

/// The same for 256 entries of `RGBA`; alpha is kept.
ZORV_EXPORT void RGBPaletteToRgbVector(const RGBA* from, QVector<unsigned int>& to);

}  // namespace Zorv
