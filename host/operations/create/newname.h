#pragma once

#include <QString>

namespace Operations {

/// Why a text cannot name a new game, character, stage or file, for the person; empty if it can.
/// The name becomes that of a folder and of files, and stands in texts between double quotes.
/// Whether something has it already is not looked at.
QString newNameFault(const QString& name);

}  // namespace Operations
