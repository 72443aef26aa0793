#pragma once

#include "operations/rename/changeset.h"

namespace Zorv {
class Archive;
}

namespace Operations {

/// The identifiers of a kind in a file of sprites or sounds. False if it cannot be read.
bool readIds(const QString& path, Family::NameKind kind, QVector<Family::AssetId>* ids);

/// Gives a sprite, a palette or a sound of a file another identifier, and writes the file through
/// an archive. False, with `error`, if it cannot be read or written.
bool renumber(const ChangeSet::Asset& asset, Zorv::Archive* archive, QString* error);

}  // namespace Operations
