#pragma once

class QString;

namespace App {

class MainWindow;

/// Opens a game (none for an empty path), shows a file with problems, or else
/// the first one, and writes a picture of the window. False, with `error`, if
/// the game cannot be opened or the picture not be written.
bool drawWindow(MainWindow* window, const QString& game, const QString& picture, QString* error);

}  // namespace App
