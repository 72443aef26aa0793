#pragma once

#include "operations/fixes/faultytext.h"
#include "operations/fixes/fixes.h"

namespace Operations {

/// Fixes for a name that does not exist: use a similar name, or create what is missing.
QVector<Fix> nameFixes(const Family::Problem& problem, const FaultyLine& line,
                       const Family::ProjectFindings& project, const FixSource& source);

/// Fixes for a file that is named but missing.
QVector<Fix> fileFixes(const FaultyLine& line, const Family::ProjectFindings& project);

}  // namespace Operations
