#pragma once

#include <QString>

namespace Family {

/// A command that engines know by its name; a value of `[.run]` configures what it does.
struct KnownCommand
{
    const char* name;
    const char* key;          ///< in `[.run]`
    const char* motion;       ///< the usual motion
    const char* description;  ///< for messages, translated in the context "Family"
};

/// The command that a value of a sub-group needs; null for none.
const KnownCommand* knownCommandOf(QLatin1String subGroup, QLatin1String key);

/// The command with this name; null if engines know none.
const KnownCommand* knownCommand(const QString& name);

}  // namespace Family
