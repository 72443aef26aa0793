#pragma once

#include <QString>

namespace App {

class MainWindow;

/// A requested picture of the window.
struct PictureRequest
{
    QString game;   ///< empty for none
    QString scene;  ///< of `pictureScenes()`; empty for the first
    QString file;
};

/// Opens the game, shows its richest text in the requested scene, and writes a picture of the
/// window. False, with `error`, if the game cannot be opened or the picture cannot be written.
bool drawWindow(MainWindow* window, const PictureRequest& request, QString* error);

}  // namespace App
