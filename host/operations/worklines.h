#pragma once

#include <QString>

namespace Zorv {
class ProjectFile;
}

namespace Operations {

/// What a document or collection holds, as lines that can be compared: its text, or a line for each
/// sprite, palette, remap or sound.
QString workLines(Zorv::ProjectFile* file);

/// The same for what its file holds now; a document is read in the encoding that it has. Empty if
/// the file cannot be read.
QString savedLines(Zorv::ProjectFile* file);

}  // namespace Operations
