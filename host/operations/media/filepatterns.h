#pragma once

#include <QStringList>

namespace Operations {

/// The files that names and patterns match, without duplicates, in the order of the names. The
/// matches of one pattern are sorted, numbers by value. A link and its target count as different
/// files.
///
/// A name that exists is taken literally, whatever characters it contains. In any other name `*`,
/// `?` and `[...]` match parts of a file or folder name, like a shell pattern. Empty, with `error`,
/// if a name matches no plain file.
QStringList expandPatterns(const QStringList& names, QString* error);

}  // namespace Operations
