#pragma once

#include <QStringList>

#include <functional>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Takes a code file that is open for as long as this runs, and what it is called.
using DocumentVisitor =
    std::function<void(const Family::FamilyDocument& document, const QString& name)>;

/// Opens the code files of a game one after the other, without sprites and sounds: those of each
/// main file, itself first, in the order in which it names them. A file that several name is opened
/// once.
///
/// `path` is a game folder, a main file, or another code file. Names begin as it does, so that they
/// can be opened from the current folder. Files that cannot be read are passed over, with the
/// reasons in `errors`, a line each for the person. A game without a main file is one.
void visitDocuments(const QString& path, const DocumentVisitor& visit, QStringList* errors);

}  // namespace Operations
