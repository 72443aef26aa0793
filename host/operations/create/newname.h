#pragma once

#include <QString>

namespace Operations {

/// Why a text cannot name a new game, character, stage or file, for the user; empty if it can. The
/// name is used for folders and files, and in texts between double quotes. Does not check whether
/// the name is taken.
QString newNameFault(const QString& name);

}  // namespace Operations
