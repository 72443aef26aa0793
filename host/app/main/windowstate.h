#pragma once

class QString;

namespace App {

class MainWindow;

/// What the window keeps in the settings from one run to the next: shape, panels,
/// game, and the texts that are shown with their places.
class WindowState
{
public:
    static void save(const MainWindow* window);
    static void restoreShape(MainWindow* window);

    /// Opens the last game with its texts; what is no longer there is left out
    /// without a question. Opens the path `otherwise` alone, unless that is empty
    /// or the last game.
    static void restoreWork(MainWindow* window, const QString& otherwise);
};

}  // namespace App
