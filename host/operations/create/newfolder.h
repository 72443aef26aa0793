#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace Operations {

/// Creates a folder atomically: it gets its name only when it is complete.
///
/// The files are first written to a hidden folder beside the target. That folder is locked while
/// the process lives. Leftovers of dead processes are removed first.
class NewFolder
{
public:
    /// `place` is the path of the new folder; the parent folder must exist.
    explicit NewFolder(const QString& place);

    /// Removes an unfinished folder.
    ~NewFolder();

    /// Creates the hidden folder. False, with `error` for the user, if something other than an
    /// empty folder is at the target path, or if the place is not writable.
    bool begin(QString* error);

    /// Where to write the files; ends in "/".
    QString path() const;

    /// Renames the folder to its final name. False, with `error`, if that fails; nothing is left
    /// behind then.
    bool finish(QString* error);

    /// Replaces the temporary paths in a text by the final ones, for messages.
    QString told(QString text) const;

    /// A message for the user that a folder is not writable.
    static QString cannotWrite(const QString& folder);

private:
    Q_DISABLE_COPY(NewFolder)
    bool make();

    QString m_place;
    std::unique_ptr<QTemporaryDir> m_hidden;
    std::unique_ptr<QLockFile> m_lock;
};

}  // namespace Operations
