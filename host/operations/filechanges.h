#pragma once

#include <QString>

#include <functional>

namespace Operations {

/// What other programs may do while a file is being changed.
enum class Others {
    Wait,    ///< they wait if they know the lock; if they hold it, `change` waits for them
    GoAhead  ///< they work on the file as well; whoever writes second starts again
};

/// The file to watch for a path: the file itself, or the list file of a folder of images.
QString watchedFile(const QString& path);

/// Runs a change that first reads and at last writes a file, or a folder of images. If another
/// program changes it in between, `change` is called again a little later, for a limited number of
/// times. False, with `error` for the user, if it could not be called. Re-entrant.
bool changeAsOne(const QString& fileName, Others others, const std::function<void()>& change,
                 QString* error);

}  // namespace Operations
