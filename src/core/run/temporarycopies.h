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
/// process lives. Main thread only.
class ZORV_EXPORT TemporaryCopies
{
public:
    /// Paths that a process which is gone has left.
    struct Leftover
    {
        QString record;     ///< the file that names them
        QStringList paths;  ///< those that are there still; folders end in "/"
    };

    TemporaryCopies();

    /// Removes what is left, as `remove()`.
    ~TemporaryCopies();

    /// Notes a file, or with "/" at its end a folder with all that it will hold. To
    /// be called before it is made. False if it could not be written down; the
    /// copy is known for as long as the object lives all the same.
    bool add(const QString& path);

    /// Removes the copies and the record; gives the paths that could not be
    /// removed, whose record stays.
    QStringList remove();

    /// What processes that are gone have left. Records that are damaged, or name
    /// anything that cannot be a copy of an engine run, are left out.
    static QList<Leftover> leftovers();

    /// Removes the copies of a record, and the record; as `remove()`.
    static QStringList removeLeftover(const Leftover& leftover);

private:
    Q_DISABLE_COPY(TemporaryCopies)
    std::unique_ptr<TemporaryCopiesPrivate> d;
};

}  // namespace Zorv
