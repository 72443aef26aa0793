#pragma once

#include <QString>

#include <optional>

namespace Zorv {
class ProjectFile;
}

namespace Operations {

/// What a document or collection holds, as lines that can be compared: its text, or a line for each
/// sprite, palette, remap or sound.
QString workLines(Zorv::ProjectFile* file);

/// The same for what its file holds now; a document is read in the encoding that it has. None if
/// the file cannot be read.
std::optional<QString> savedLines(Zorv::ProjectFile* file);

}  // namespace Operations
