#pragma once

#include <QKeySequence>
#include <QVector>

namespace App {

class MainWindow;

/// What must be there for an action to be of use; `MainWindow::presentNeeds()`
/// tells what is.
enum Need {
    NoNeed = 0,
    NeedsGame = 1,
    NeedsProject = 2,
    NeedsText = 4,
    NeedsUnsaved = 8,
    NeedsUndo = 16,
    NeedsRedo = 32,
    NeedsSelection = 64,
    NeedsAnimation = 128,  ///< a current row in the list of animations
    NeedsEngine = 256,     ///< an engine runs
    NeedsNoEngine = 512,   ///< none does
    NeedsSprites = 1024,   ///< the project has a sprite file
    NeedsSprite = 2048,    ///< a current row in its list
    NeedsPalette = 4096,   ///< the sprite there has a palette
    NeedsSpriteUndo = 8192,
    NeedsSpriteRedo = 16384,
    NeedsSounds = 32768,  ///< the project has a sound file
    NeedsSound = 65536,   ///< a current row in its list
    NeedsSoundUndo = 131072,
    NeedsSoundRedo = 262144,
    NeedsFrame = 524288,        ///< a frame of the text on the time line
    NeedsStage = 1048576,       ///< a stage that can be seen
    NeedsStageFrame = 2097152,  ///< and a frame on it
    NeedsBox = 4194304          ///< a contact box that is selected there
};

/// One action of the window: a row of the table.
struct ActionRow
{
    /// One that is on or off tells it by `QAction::isChecked()`.
    enum Kind { Button, Switch };

    const char* name;  ///< the object name of the action; null for a separator
    const char* menu;
    const char* text;
    QKeySequence::StandardKey standardKey;
    const char* shortcut;  ///< portable, more than one with "; "; where there is no standard key
    int needs;             ///< of `Need`
    void (*slot)(MainWindow& window);
    const char* area = nullptr;  ///< where it applies; null for everywhere
    Kind kind = Button;
};

/// The slot of a row whose work is a member of the window.
template <void (MainWindow::*member)()>
void call(MainWindow& window)
{
    (window.*member)();
}

/// One menu: a row of the table.
struct MenuRow
{
    const char* name;
    const char* text;
};

/// In the order in which they are shown.
const QVector<ActionRow>& actionTable();
const QVector<MenuRow>& menuTable();

}  // namespace App
