#pragma once

#include <QFont>

namespace App {

/// The font of code; before `setCodeFont()`, the application font.
QFont codeFont();

/// Sets the family and the size in points. An empty family means the desktop's fixed-width font, or
/// any fixed-width font if the desktop does not define one. Size 0 means the desktop's size.
/// Documents take the font when they are shown next, their tokens at once.
void setCodeFont(const QString& family, int size);

}  // namespace App
