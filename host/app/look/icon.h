#pragma once

#include <QIcon>

namespace App {

/// The icon of a picture of the resources, ":/icons/icons/NAME.png", together with the larger
/// ones beside it (NAME@1.5x.png, NAME@2x.png): it is sharp at 1x, 1.5x and 2x. Null if there is
/// no such picture.
QIcon icon(const QString& file);

}  // namespace App
