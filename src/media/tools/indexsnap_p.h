#pragma once

#include <QImage>

namespace Zorv {

/// The pixels of an indexed image as colours, in `Format_RGB32` if all entries of its table are
/// opaque and else in `Format_ARGB32`. What is transparent or behind the table is 0.
QImage colorsOf(const QImage& indexed);

/// Gives an indexed image the colours of another of the same size, as near as its colour table
/// allows; the table has an entry.
///
/// A pixel that has its colour already keeps its index, also where two entries are equal. What is
/// more transparent than not takes the first transparent entry, if there is one, and anything else
/// the nearest of those that are not.
void snapToColors(QImage& indexed, const QImage& colors);

}  // namespace Zorv
