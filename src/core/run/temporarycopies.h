#pragma once

#include "zorv_export.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace Zorv {

class TemporaryCopiesPrivate;

/// The files and folders that stand beside an engine as long as it runs.
///
/// They are written down before they are made, in the data folder of the
/// person's programs, so that a program that was killed leaves no copy unknown:
/// `leftovers()` finds them at the next start. A record is locked as long as its
/// process lives. Nothing that was there before is ever removed, and no link is
/// followed. Main thread only.
class ZORV_EXPORT TemporaryCopies
{
public:
    /// What a process that is gone has left.
    struct Leftover
    {
        QString record;     ///< the file that names the paths
        QString folder;     ///< the engine's, ends in "/"
        QStringList paths;  ///< those that are there still; folders end in "/"
    };

    /// Copies below `folder`, the engine's.
    explicit TemporaryCopies(const QString& folder);

    /// Removes what is left, as `remove()`.
    ~TemporaryCopies();

    /// Takes a folder as temporary, with all that it will hold, and makes it.
    /// False if it is there already, is not below the engine's, or cannot be made;
    /// nothing is taken then. A folder that cannot be written down is taken all the
    /// same: it is known for as long as the object lives.
    bool addFolder(const QString& path);

    /// Moves all files of the temporary folder `from` to `to`, a folder of the engine,
    /// with their paths below it, and takes them as temporary, with the folders that
    /// have to be made. Gives the paths, relative to `from`, of those that could
    /// not go: what is there already stays, and counts as gone if it is the same. `from` is
    /// removed.
    QStringList spread(const QString& from, const QString& to);

    /// Removes the copies and the record; gives the paths that could not be
    /// removed, whose record stays. A folder that `spread()` made stays if it
    /// holds something.
    QStringList remove();

    /// What processes that are gone have left. Records that are damaged are left out,
    /// and so is all that cannot be a copy: a folder whose name does not begin with
    /// "zorvs_" and a digit, a file that was changed since it was copied, whatever
    /// lies behind a link.
    static QList<Leftover> leftovers();

    /// Removes the copies of a record, and the record; as `remove()`. Only what
    /// `leftovers()` would still give is touched.
    static QStringList removeLeftover(const Leftover& leftover);

private:
    Q_DISABLE_COPY(TemporaryCopies)
    std::unique_ptr<TemporaryCopiesPrivate> d;
};

}  // namespace Zorv
