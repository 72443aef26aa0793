#pragma once

#include "family/meaning/linename.h"

#include <QByteArray>
#include <QVector>

namespace Operations {

/// An atomic change of several files of a game: all of it is done, or nothing.
struct ChangeSet
{
    struct Text
    {
        QString path;  ///< absolute, like the next two
        QByteArray before;
        QByteArray after;
    };
    /// A new identifier for a sprite, a palette or a sound.
    struct Asset
    {
        QString path;
        Family::NameKind kind;
        Family::AssetId from;
        Family::AssetId to;
    };
    /// A new name for a file or folder. Applied last, so `path` above is the old one.
    struct Move
    {
        QString from;
        QString to;
    };

    QVector<Text> texts;
    QVector<Asset> assets;
    QVector<Move> moves;

    bool isEmpty() const { return texts.isEmpty() && assets.isEmpty() && moves.isEmpty(); }

    /// The change that undoes this one.
    ChangeSet reversed() const;

    /// The path of a file after the change.
    QString movedPath(const QString& path) const;
};

/// Applies a change while holding the lock of the game folder. On failure returns false with
/// `error` for the user, and every file is as before. It fails if a file differs from its `before`.
///
/// First writes all new files beside the old ones and copies the old ones, so that a full disk
/// cannot cause a failure later. Then it writes a journal. After that it only renames files. If the
/// program is killed, the journal remains and `settleChanges()` finishes the work. Main thread.
bool writeChanges(const ChangeSet& changes, const QString& gameFolder, QString* error);

/// Finishes a change that was interrupted when the program was killed. If nothing was replaced yet,
/// nothing will be; otherwise the rest is replaced too. A file that somebody changed since is kept.
/// Returns one line for the user for everything that was done or could not be done. Empty if there
/// was nothing to finish; that costs one look at the disk.
QStringList settleChanges(const QString& gameFolder);

}  // namespace Operations
