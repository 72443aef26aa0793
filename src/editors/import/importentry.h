#pragma once

#include <QPersistentModelIndex>
#include <QString>

namespace Zorv {

/// A row of another project's list that is to be taken over, and what it is to be called.
///
/// The row goes with its list: it is invalid when that, or what stands there, has gone.
struct ImportEntry
{
    QPersistentModelIndex source;
    QString identifier;
};

/// What happens to an entry whose identifier the destination has already.
enum class ImportConflict {
    Replace,  ///< it takes the place of the first one there
    Skip      ///< it is not added
};

}  // namespace Zorv
