#pragma once

#include "family/grammar/filekind.h"

#include <QStringList>

namespace Operations {

/// Kinds of files, a bit `1 << FileKind` each.
using FileKinds = int;
constexpr FileKinds AllKinds = ~0;

inline bool hasKind(FileKinds kinds, Family::FileKind kind)
{
    return kinds & (1 << int(kind));
}

/// The code files of a game, of any folder in it, whether a project names them or not: absolute
/// paths in order. Hidden folders, backups and copies for an engine are left out, links are not
/// followed. For any thread.
QStringList codeFiles(const QString& folder, FileKinds kinds = AllKinds);

}  // namespace Operations
