#pragma once

#include "family/grammar/filekind.h"

#include <QStringList>

namespace Operations {

/// A set of file kinds, with the bit `1 << FileKind` for each.
using FileKinds = int;
constexpr FileKinds AllKinds = ~0;

inline bool hasKind(FileKinds kinds, Family::FileKind kind)
{
    return kinds & (1 << int(kind));
}

/// The code files in all folders of a game, whether a project names them or not, as sorted absolute
/// paths. Skips hidden folders, backups and copies for an engine. Does not follow links. For any
/// thread.
QStringList codeFiles(const QString& folder, FileKinds kinds = AllKinds);

}  // namespace Operations
