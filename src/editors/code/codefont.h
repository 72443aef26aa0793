#pragma once

#include "zorv_export.h"

#include <QFont>

namespace Zorv {

/// The font for code of a family and a size in points.
///
/// An empty family is the fixed one of the desktop, or where no desktop says which that is,
/// any whose characters have one width; a size of 0 is that of the desktop. Main thread only.
ZORV_EXPORT QFont codeFont(const QString& family, int size);

}  // namespace Zorv
