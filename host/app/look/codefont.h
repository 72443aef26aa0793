#pragma once

#include <QFont>

namespace App {

/// The font in which code is shown; that of the application before `setCodeFont()`.
QFont codeFont();

/// Takes the family and the size in points. An empty family is the fixed one of the desktop, or
/// where no desktop says which that is, any whose characters have one width; a size of 0 is that
/// of the desktop. Documents take it when they are shown, and their tokens at once.
void setCodeFont(const QString& family, int size);

}  // namespace App
