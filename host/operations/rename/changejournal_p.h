#pragma once

#include "operations/rename/changeset.h"

namespace Operations {

/// The file in a game folder that records an unfinished change.
QString journalPath(const QString& gameFolder);

/// The journal as bytes; paths are relative to the game.
QByteArray journalOf(const ChangeSet& changes, const QString& gameFolder);

/// Parses a journal. Returns false if it is invalid or would touch a file outside of the game: a
/// journal may come with a game from an untrusted source.
bool readJournal(const QByteArray& bytes, const QString& gameFolder, ChangeSet* changes);

}  // namespace Operations
