#pragma once

#include "operations/rename/changeset.h"

namespace Zorv {
class Archive;
}

namespace Operations {

/// Reads the identifiers of one kind in a sprite or sound file. False if it cannot be read.
bool readIds(const QString& path, Family::NameKind kind, QVector<Family::AssetId>* ids);

/// Changes the identifier of a sprite, a palette or a sound, and writes its file through an
/// archive. False, with `error`, if it cannot be read or written.
bool renumber(const ChangeSet::Asset& asset, Zorv::Archive* archive, QString* error);

}  // namespace Operations
