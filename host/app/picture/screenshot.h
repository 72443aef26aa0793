#pragma once

#include <QString>

namespace App {

class MainWindow;

/// A picture of the window that somebody wants.
struct PictureRequest
{
    QString game;   ///< empty for none
    QString scene;  ///< of `pictureScenes()`; empty for the first
    QString file;
};

/// Opens the game, shows the text of it that has most to show, in the scene that is wanted,
/// and writes a picture of the window. False, with `error`, if the game cannot be opened or
/// the picture not be written.
bool drawWindow(MainWindow* window, const PictureRequest& request, QString* error);

}  // namespace App
