#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace App {

/// A command for the editor or panel that has the keyboard focus.
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

/// How a panel or an editor runs one command.
struct CommandRow
{
    Command command;
    std::function<void()> run;
    std::function<bool()> isAllowed = {};  ///< no function: always allowed
    std::function<QString()> title = {};   ///< name of the step to undo or redo; no function: none
};

using CommandRows = QVector<CommandRow>;

}  // namespace App
