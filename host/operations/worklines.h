#pragma once

#include <QString>

#include <optional>

namespace Zorv {
class ProjectFile;
}

namespace Operations {

/// The content of a document or collection as lines for comparison: its text, or one line for each
/// sprite, palette, remap or sound.
QString workLines(Zorv::ProjectFile* file);

/// The same for the file on disk. A document is decoded in the encoding that it has. Nothing if the
/// file cannot be read.
std::optional<QString> savedLines(Zorv::ProjectFile* file);

}  // namespace Operations
