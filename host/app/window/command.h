#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace App {

/// What goes to the editor or panel that has the keyboard.
enum class Command {
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Delete,
    SelectAll,
    Save,
    Find,
    FindNext,
    FindPrevious,
    ZoomIn,
    ZoomOut,
    ZoomActual
};

/// How a panel or an editor does one of them.
struct CommandRow
{
    Command command;
    std::function<void()> run;
    std::function<bool()> isAllowed = {};  ///< none for always
    std::function<QString()> title = {};   ///< of the step, for undo and redo; empty for none
};

using CommandRows = QVector<CommandRow>;

}  // namespace App
