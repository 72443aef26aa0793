#pragma once

#include <QStringList>

class QSpinBox;

namespace App {

/// The names of the places of an image where an axis can be, in the order of
/// `Operations::AxisBase`, without "where it is".
QStringList axisPlaceNames();

/// A field for how far an axis is from such a place. The caller's.
QSpinBox* makeOffsetBox();

}  // namespace App
