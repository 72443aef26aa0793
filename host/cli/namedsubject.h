#pragma once

#include "operations/references/referenceindex.h"

#include <memory>

namespace Cli {

/// The subject that the operands CHARACTER KIND NAME refer to, with the index of its game. None if
/// they match nothing; `error` is then set unless the user canceled.
Operations::Subject namedSubject(const QStringList& operands,
                                 std::unique_ptr<Operations::ReferenceIndex>* index,
                                 QString* error);

}  // namespace Cli
