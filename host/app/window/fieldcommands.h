#pragma once

#include "app/window/command.h"

class QWidget;

namespace Zorv {
class ProjectFile;
}

namespace App {

/// How a field that texts are written in or read in does the commands: a line, a spin box, a text.
/// Empty for any other widget.
CommandRows fieldCommands(QWidget* widget);

/// Undo and redo of the file that `file()` gives, which may be null.
CommandRows historyCommands(const std::function<Zorv::ProjectFile*()>& file);

}  // namespace App
