#pragma once

#include "family/meaning/linename.h"

#include <QByteArray>
#include <QVector>

namespace Operations {

/// One change of several files of a game: all of it is done, or nothing.
struct ChangeSet
{
    struct Text
    {
        QString path;  ///< absolute, as the next two
        QByteArray before;
        QByteArray after;
    };
    /// Another identifier for a sprite, a palette or a sound.
    struct Asset
    {
        QString path;
        Family::NameKind kind;
        Family::AssetId from;
        Family::AssetId to;
    };
    /// Another name for a file, or for a folder. It comes last, so `path` above is the old one.
    struct Move
    {
        QString from;
        QString to;
    };

    QVector<Text> texts;
    QVector<Asset> assets;
    QVector<Move> moves;

    bool isEmpty() const { return texts.isEmpty() && assets.isEmpty() && moves.isEmpty(); }

    /// What takes it back.
    ChangeSet reversed() const;

    /// The file that `path` is called when all is done.
    QString movedPath(const QString& path) const;
};

/// Does a change, under the lock of the game folder. False, with `error` for the person, if that
/// fails; then every file is as it was. Files that are not as the change tells make it fail.
///
/// First all new files are written beside the old ones, and the old ones are copied, so that
/// nothing fails for want of room later. Then a journal is written, then files are only renamed. A
/// program that is killed leaves the journal, and `settleChanges()` does the rest. Main thread.
bool writeChanges(const ChangeSet& changes, const QString& gameFolder, QString* error);

/// Brings a change to its end that a killed program has left: nothing was replaced, and nothing
/// will be; or the rest is replaced too. What has been changed by somebody since stays. Gives a
/// line for the person for what was done, and for what could not be; empty if nothing was left,
/// which costs one look at the disk.
QStringList settleChanges(const QString& gameFolder);

}  // namespace Operations
