#pragma once

#include <QString>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Whether the group [files] of a main file can name a file with that suffix, as in ".code".
bool canBeNamed(const QString& suffix);

/// Adds a line to [files] of a main file that names `fileName`, as one step of undo. False, with no
/// change, if it names the file already, or another one of a kind of which one alone counts, or if
/// the suffix is none of these.
bool nameFile(Family::FamilyDocument* main, const QString& fileName);

}  // namespace Operations
