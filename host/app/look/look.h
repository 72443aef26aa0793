#pragma once

namespace App {

/// Applies the appearance settings: language ("language"), theme ("theme"), code font ("font_name",
/// "font_size"). Open windows follow, except for the colours and fonts of code: see
/// `MainWindow::reconfig()`. The host (`Zorv::Interface`) must be installed.
void applyLook();

}  // namespace App
