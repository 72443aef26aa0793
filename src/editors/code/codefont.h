#pragma once

#include "zorv_export.h"

#include <QFont>

namespace Zorv {

/// The code font for a family and a size in points.
///
/// An empty family means the desktop's fixed-width font; if the desktop names none, any fixed-width
/// font. Size 0 means the desktop's size. Main thread only.
ZORV_EXPORT QFont codeFont(const QString& family, int size);

}  // namespace Zorv
