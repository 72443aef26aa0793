#pragma once

class QString;
class QStringList;

namespace App {

class MainWindow;

/// The names of all scenes: what a picture of the window can show.
QStringList pictureScenes();

/// Arranges a window with an open game as a scene; an empty name means the first scene. Looks for
/// suitable contents in the game's texts, and leaves out what it does not find. Writes nothing.
void arrangeScene(MainWindow* window, const QString& name);

/// Waits until panels, popups and texts have settled.
void settleWindow();

}  // namespace App
