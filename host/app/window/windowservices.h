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

/// Asks before something is removed that is used elsewhere, and tells where. True to remove it.
/// `removal()` gives what is to go at the moment: files can be read anew behind the question, and
/// what the person was not asked about stays.
using RemovalCheck = std::function<bool(const std::function<Operations::Removal()>& removal)>;

/// The places that name what is told, a line each for the person. False while that is not known.
using UseFinder = std::function<bool(const Operations::Removal& what, QStringList* places)>;

/// Asks what becomes of image files, and adds them to the sprites.
using ImageAdder = std::function<void(Family::SpriteCollection* into, const QStringList& files)>;

/// What the parts of the window use of it, and of each other. All of it outlives them, and is
/// there when the first of them is made.
struct WindowServices
{
    QMainWindow* window = nullptr;   ///< the parent of their dialogs
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
