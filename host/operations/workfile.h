#pragma once

#include <functional>

class QObject;

namespace Zorv {
class ProjectFile;
}

namespace Operations {

/// Notifications about a file that the user works on: a document, or a collection of sprites or
/// sounds.
struct WorkEvents
{
    std::function<void()> changed;       ///< its content, or whether it has unsaved changes
    std::function<void()> synchronized;  ///< it was just loaded from its file, or saved
    std::function<void()> gone;          ///< its object was destroyed
};

/// Calls the functions as long as `receiver` lives.
void followWork(Zorv::ProjectFile* file, QObject* receiver, const WorkEvents& events);

}  // namespace Operations
