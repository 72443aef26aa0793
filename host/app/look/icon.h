#pragma once

#include <QIcon>

namespace App {

/// The icon ":/icons/icons/NAME.png" of the resources, with its larger versions (NAME@1.5x.png,
/// NAME@2x.png), so that it is sharp at 1x, 1.5x and 2x. Null if the picture does not exist.
QIcon icon(const QString& file);

}  // namespace App
