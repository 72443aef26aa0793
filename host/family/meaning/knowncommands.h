#pragma once

#include <QString>

namespace Family {

/// A command that engines know by its name: it does what a value of `[.run]` tells.
struct KnownCommand
{
    const char* name;
    const char* key;          ///< of `[.run]`
    const char* motion;       ///< the usual one
    const char* description;  ///< for a message, to be translated in the context "Family"
};

/// What a value of a sub-group needs; null for nothing.
const KnownCommand* knownCommandOf(QLatin1String subGroup, QLatin1String key);

/// The command of a name; null if engines know none of it.
const KnownCommand* knownCommand(const QString& name);

}  // namespace Family
