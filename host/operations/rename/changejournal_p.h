#pragma once

#include "operations/rename/changeset.h"

namespace Operations {

/// The file in a game folder that tells of a change under way.
QString journalPath(const QString& gameFolder);

/// The journal as bytes; paths are relative to the game.
QByteArray journalOf(const ChangeSet& changes, const QString& gameFolder);

/// Reads one. False for bytes that are no journal, or that would touch a file outside of the game:
/// it can come with a game of somebody else.
bool readJournal(const QByteArray& bytes, const QString& gameFolder, ChangeSet* changes);

}  // namespace Operations
