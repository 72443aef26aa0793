#pragma once

#include <QStringList>

namespace Operations {

/// The files that names and patterns mean, each once, in the order of the names; those of one
/// pattern are sorted, numbers by value. A link is a file beside the one that it leads to.
///
/// A name that is there is itself, whatever signs are in it. In any other `*`, `?` and `[...]`
/// stand for parts of the name of a file or folder, as in a shell that was kept from it by
/// quotes. Empty, with `error`, if one of them means no plain file.
QStringList expandPatterns(const QStringList& names, QString* error);

}  // namespace Operations
