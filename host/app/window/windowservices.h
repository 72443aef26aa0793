#pragma once

#include <QMainWindow>

namespace App {

class ActionRegistry;
class EditorRegistry;
class GameSession;
class Jumps;
class PartList;
class StatusFields;

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
};

}  // namespace App
