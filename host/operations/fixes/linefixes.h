#pragma once

#include "operations/fixes/faultytext.h"
#include "operations/fixes/fix.h"

namespace Operations {

/// The mend of a problem that its line and the grammar tell alone. Without changes if there is
/// none.
Fix lineFix(const Family::Problem& problem, const FaultyLine& line);

}  // namespace Operations
