#pragma once

class QString;

namespace App {

class MainWindow;

/// What the window stores in the settings between runs: its geometry, panels, the open game, and
/// the open texts with their cursor positions.
class WindowState
{
public:
    static void save(const MainWindow* window);
    static void restoreShape(MainWindow* window);

    /// Opens the last game with its texts. Silently skips what no longer exists. If `otherwise` is
    /// neither empty nor the last game, opens only that path.
    static void restoreWork(MainWindow* window, const QString& otherwise);
};

}  // namespace App
