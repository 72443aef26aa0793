#pragma once

#include <functional>

class QObject;

namespace Zorv {
class ProjectFile;
}

namespace Operations {

/// What can be heard of a file that a person works on: a document, or a collection of sprites or
/// sounds.
struct WorkEvents
{
    std::function<void()> changed;       ///< its content, or whether there is something to save
    std::function<void()> synchronized;  ///< it has just been read from its file, or written to it
    std::function<void()> gone;          ///< its object is dead
};

/// Calls the functions as long as `receiver` lives.
void followWork(Zorv::ProjectFile* file, QObject* receiver, const WorkEvents& events);

}  // namespace Operations
