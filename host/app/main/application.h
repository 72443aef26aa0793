#pragma once

#include <QStringList>

class QApplication;

namespace App {

/// Shows the window and runs until it is closed; returns the exit status of the program.
/// `arguments`, without the program's name and Qt's own options, are
///
///     [GAME]                        the game to open, else the last one
///     --screenshot FILE.png [GAME]  draws the window to a picture and ends
///
/// A picture shows the game with a file that has problems in front, if there is one, or with
/// "--scene" one of `pictureScenes()`. The user's settings are neither read nor written, and no
/// dialog waits for an answer. The status is 0, 2 for wrong usage, 3 if the picture cannot be made.
int runWindow(QApplication& application, const QStringList& arguments);

}  // namespace App
