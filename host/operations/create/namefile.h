#pragma once

#include <QString>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Whether the group [files] of a main file can name a file with this suffix, such as ".code".
bool canBeNamed(const QString& suffix);

/// Adds a line that names `fileName` to [files] of a main file, as one undo step. Returns false and
/// changes nothing if the file is already named, if its kind allows only one file and another is
/// named, or if the suffix is not supported.
bool nameFile(Family::FamilyDocument* main, const QString& fileName);

}  // namespace Operations
