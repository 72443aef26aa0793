#pragma once

#include <QStringList>

class QSpinBox;

namespace App {

/// The names of the axis places in an image, in the order of `Operations::AxisBase`, without "where
/// it is".
QStringList axisPlaceNames();

/// A field for the offset of an axis from such a place. The caller owns it.
QSpinBox* makeOffsetBox();

}  // namespace App
