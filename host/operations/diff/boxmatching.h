#pragma once

#include "operations/diff/animationdiff.h"

namespace Operations {

/// The boxes that differ between two frames: attack boxes, then body boxes.
QVector<BoxDiff> diffBoxes(const QVector<BoxRecord>& oldBoxes, const QVector<BoxRecord>& newBoxes);

}  // namespace Operations
