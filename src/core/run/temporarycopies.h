#pragma once

#include "zorv_export.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace Zorv {

class TemporaryCopiesPrivate;

/// The temporary files and folders next to an engine while it runs.
///
/// Their paths are recorded before they are created, in a file in the user's application data
/// folder. So even if the program is killed, `leftovers()` finds the copies at the next start. A
/// record is locked as long as its process lives. Existing files are never removed and links are
/// never followed. Main thread only.
class ZORV_EXPORT TemporaryCopies
{
public:
    /// The copies left by a process that no longer exists.
    struct Leftover
    {
        QString record;     ///< the file that lists the paths
        QString folder;     ///< the engine's folder, with "/" at its end
        QStringList paths;  ///< those that still exist; folders end with "/"
    };

    /// For copies below `folder`, the engine's folder.
    explicit TemporaryCopies(const QString& folder);

    /// Removes the remaining copies, like `remove()`.
    ~TemporaryCopies();

    /// Creates a folder that is temporary with everything in it. Returns false, without any effect,
    /// if it already exists, is not below the engine's folder or cannot be created. If the record
    /// cannot be written, the folder is still created; it is then only known as long as this object
    /// lives.
    bool addFolder(const QString& path);

    /// Moves all files from the temporary folder `from` to `to`, a folder of the engine, with their
    /// paths below it. The moved files are temporary, and so are the folders created for them. An
    /// existing file is never replaced; if it has the same content, the file counts as moved.
    /// Returns the paths, relative to `from`, of files that could not be moved. `from` is removed.
    QStringList spread(const QString& from, const QString& to);

    /// Removes the copies and the record. Returns the paths that could not be removed; the record
    /// then stays. A folder created by `spread()` stays if it is not empty.
    QStringList remove();

    /// The copies left by processes that no longer exist. Damaged records are skipped, and so is
    /// everything that cannot be a copy: a folder whose name does not begin with "zorvs_" and a
    /// digit, a file changed since it was copied, and anything behind a link.
    static QList<Leftover> leftovers();

    /// Removes the copies of a record and the record itself, like `remove()`. Only touches what
    /// `leftovers()` would still return.
    static QStringList removeLeftover(const Leftover& leftover);

private:
    Q_DISABLE_COPY(TemporaryCopies)
    std::unique_ptr<TemporaryCopiesPrivate> d;
};

}  // namespace Zorv
