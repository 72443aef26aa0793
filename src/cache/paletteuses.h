#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class Palettes;

/// For each palette of the collection, by row, the number of sprites that use it. Visits each
/// sprite, but decodes none. Main thread only.
ZORV_EXPORT QVector<int> paletteUses(const Palettes& palettes);

}  // namespace Zorv
