#pragma once

#include <QImage>

namespace Zorv {

/// Converts an indexed image to colours: `Format_RGB32` if all entries of its table are opaque,
/// otherwise `Format_ARGB32`. Transparent pixels and those beyond the table become 0.
QImage colorsOf(const QImage& indexed);

/// Gives an indexed image the colours of another image of the same size, as closely as its colour
/// table allows. The table must not be empty.
///
/// A pixel that already has its colour keeps its index, even if another entry is equal. A mostly
/// transparent pixel takes the first transparent entry, if there is one. Any other takes the
/// nearest entry that is not transparent.
void snapToColors(QImage& indexed, const QImage& colors);

}  // namespace Zorv
