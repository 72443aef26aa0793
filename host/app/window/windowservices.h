#pragma once

#include <QMainWindow>
#include <QStringList>

#include <functional>

namespace Family {
class SpriteCollection;
}

namespace Operations {
struct Removal;
}

namespace App {

class ActionRegistry;
class EditorRegistry;
class GameSession;
class Jumps;
class PartList;
class StatusFields;

/// Asks before something that is used elsewhere is removed, and lists the places. True to remove
/// it. `removal()` returns what would be removed now: files can be reloaded while the question is
/// open, and what the user was not asked about must stay.
using RemovalCheck = std::function<bool(const std::function<Operations::Removal()>& removal)>;

/// Finds the places that use something, one line of text each. False while they are not known.
using UseFinder = std::function<bool(const Operations::Removal& what, QStringList* places)>;

/// Asks how to import image files, and adds them to the sprites.
using ImageAdder = std::function<void(Family::SpriteCollection* into, const QStringList& files)>;

/// What the parts of the window use of the window and of each other. Everything here outlives the
/// parts and exists before the first one is made.
struct WindowServices
{
    QMainWindow* window = nullptr;   ///< parent of their dialogs
    GameSession* session = nullptr;  ///< what is open
    StatusFields* status = nullptr;
    ActionRegistry* actions = nullptr;
    EditorRegistry* editors = nullptr;
    PartList* parts = nullptr;
    Jumps* jumps = nullptr;
    RemovalCheck mayRemove;
    UseFinder findUses;
    ImageAdder addImages;
};

}  // namespace App
