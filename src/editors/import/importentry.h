#pragma once

#include <QPersistentModelIndex>
#include <QString>

namespace Zorv {

/// A row of another project's list that will be imported, and its new identifier.
///
/// The row dies with its list: it becomes invalid when the list, or the thing in the row, is
/// deleted.
struct ImportEntry
{
    QPersistentModelIndex source;
    QString identifier;
};

/// What to do with an entry whose identifier already exists in the destination.
enum class ImportConflict {
    Replace,  ///< it replaces the first one with that identifier
    Skip      ///< it is not added
};

}  // namespace Zorv
