#pragma once

namespace App {

/// Gives the application what the settings say of its look: language ("language"), theme
/// ("theme"), font of code ("font_name", "font_size"). Windows that are there follow, except for
/// the colours and fonts of code: see `MainWindow::reconfig()`. The host (`Zorv::Interface`) must
/// be installed.
void applyLook();

}  // namespace App
