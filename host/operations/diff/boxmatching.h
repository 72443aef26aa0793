#pragma once

#include "operations/diff/animationdiff.h"

namespace Family {

/// The boxes of two frames that differ: attack boxes, then body boxes.
QVector<BoxDiff> diffBoxes(const QVector<BoxRecord>& oldBoxes, const QVector<BoxRecord>& newBoxes);

}  // namespace Family
