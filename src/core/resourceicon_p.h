#pragma once

#include <QIcon>

namespace Zorv {

/// The icon at a resource path. Icons are created once and cached until the
/// application ends, because models are asked for them on every repaint.
QIcon resourceIcon(const QString& path);

}  // namespace Zorv
