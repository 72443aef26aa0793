#pragma once

namespace App {

class MainWindow;

/// Opens the dialog of all settings on a window, or brings it forward. The window takes what is
/// applied at once.
void showSettings(MainWindow& window);

}  // namespace App
