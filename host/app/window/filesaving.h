#pragma once

namespace Zorv {
class ProjectFile;
}

namespace App {

struct WindowServices;

/// Saves the file that the user works on, reports it in the status bar, and makes the window check
/// the game again. See `saveFiles()`.
void saveFile(const WindowServices& services, Zorv::ProjectFile* file);

}  // namespace App
