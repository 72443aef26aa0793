#pragma once

#include "zorv_export.h"

#include <QVector>

namespace Zorv {

class Palettes;

/// How many sprites of the collection have each of its palettes, by row. Costs a look at each
/// sprite, and decodes none. Main thread only.
ZORV_EXPORT QVector<int> paletteUses(const Palettes& palettes);

}  // namespace Zorv
