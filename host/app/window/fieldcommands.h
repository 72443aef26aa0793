#pragma once

#include "app/window/command.h"

class QWidget;

namespace Zorv {
class ProjectFile;
}

namespace App {

/// The commands of an input field: a line edit, a spin box, a text that can be edited or only read.
/// Empty for any other widget.
CommandRows fieldCommands(QWidget* widget);

/// Undo and redo for the file that `file()` returns, which may be null.
CommandRows historyCommands(const std::function<Zorv::ProjectFile*()>& file);

}  // namespace App
