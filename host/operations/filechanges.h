#pragma once

#include <QString>

#include <functional>

namespace Operations {

/// What other programs may do while a file is changed.
enum class Others {
    Wait,    ///< those that know the lock wait; for one that has it `change` waits in turn
    GoAhead  ///< they work on the file as well: whoever comes later begins anew
};

/// The file of which a change is seen: that of a path, or of a folder of images its list.
QString watchedFile(const QString& path);

/// Does a change that begins with reading a file, or a folder of images, and ends with writing it.
/// If another program changes it in between, `change` is called again a little later, and
/// after some times no more. False, with `error` for the person, if it could not be called.
/// Re-entrant.
bool changeAsOne(const QString& fileName, Others others, const std::function<void()>& change,
                 QString* error);

}  // namespace Operations
