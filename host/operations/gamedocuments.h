#pragma once

#include <QStringList>

#include <functional>

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Receives an open code file and its name. The document is only open during the call.
using DocumentVisitor =
    std::function<void(const Family::FamilyDocument& document, const QString& name)>;

/// Opens the code files of a game one after the other, without sprites and sounds. For each main
/// file: the file itself first, then the files that it names, in that order. A file that several
/// main files name is opened once.
///
/// `path` is a game folder, a main file, or another code file. Names begin as `path` does, so that
/// they can be opened from the current folder. Files that cannot be read are skipped, with one line
/// each in `errors` for the user. `errors` also reports a game without a main file.
void visitDocuments(const QString& path, const DocumentVisitor& visit, QStringList* errors);

}  // namespace Operations
