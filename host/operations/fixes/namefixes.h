#pragma once

#include "operations/fixes/faultytext.h"
#include "operations/fixes/fixes.h"

namespace Operations {

/// What can be done about a name that nothing has: another name that is near, or what is missing
/// is made.
QVector<Fix> nameFixes(const Family::Problem& problem, const FaultyLine& line,
                       const Family::ProjectFindings& project, const FixSource& source);

/// Likewise of a file that is named and not there.
QVector<Fix> fileFixes(const FaultyLine& line, const Family::ProjectFindings& project);

}  // namespace Operations
