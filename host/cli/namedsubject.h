#pragma once

#include "operations/references/referenceindex.h"

#include <memory>

namespace Cli {

/// What the operands CHARACTER KIND NAME stand for, with the index of its game. None, with `error`
/// unless the person has given up, if they stand for nothing.
Operations::Subject namedSubject(const QStringList& operands,
                                 std::unique_ptr<Operations::ReferenceIndex>* index,
                                 QString* error);

}  // namespace Cli
