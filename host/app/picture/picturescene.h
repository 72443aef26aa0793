#pragma once

class QString;
class QStringList;

namespace App {

class MainWindow;

/// What a picture of the window shows: the names of all scenes.
QStringList pictureScenes();

/// Brings a window with an open game into a scene; an empty name is that of the first one.
/// What it takes is looked for in the texts of the game, and what is not there is left out.
/// Nothing is written.
void arrangeScene(MainWindow* window, const QString& name);

/// Lets panels, popups and texts come to rest.
void settleWindow();

}  // namespace App
