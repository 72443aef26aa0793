#pragma once

#include "operations/fixes/faultytext.h"
#include "operations/fixes/fix.h"

namespace Operations {

/// A fix derived only from the line of a problem and the grammar. It has no changes if there is
/// none.
Fix lineFix(const Family::Problem& problem, const FaultyLine& line);

}  // namespace Operations
