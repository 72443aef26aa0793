#pragma once

#include <QIcon>

namespace Zorv {

/// The icon at a resource path. Models are asked for icons at every repaint, so
/// each is made once and kept until the application ends.
QIcon resourceIcon(const QString& path);

}  // namespace Zorv
