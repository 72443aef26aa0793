#pragma once

namespace Zorv {
class ProjectFile;
}

namespace App {

struct WindowServices;

/// Saves the file that the person works on, tells so in the status bar, and has the window look at
/// the game again. See `saveFiles()`.
void saveFile(const WindowServices& services, Zorv::ProjectFile* file);

}  // namespace App
