#pragma once

#include "family/grammar/filekind.h"
#include "family/grammar/keyinfo.h"

namespace Family {

/// One kind of group: a row of a table. Texts are static ASCII.
struct GroupInfo
{
    enum Flag { NoFlags = 0, TakesArgument = 1, FreeKeys = 2, Unknown = 4, SubGroup = 8 };

    unsigned number;     ///< of its nodes, above 0; rows with the same number are one kind
    unsigned parent;     ///< number of the main group of a sub-group, else 0
    QLatin1String name;  ///< without brackets, dot and argument
    int flags;           ///< of `Flag`
    int files;           ///< bit `1 << FileKind` for each kind of file that allows it
    const KeyInfo* keys;
    int keyCount;
    QLatin1String replacement;  ///< the new name of an old group, otherwise empty
    QLatin1String description;  ///< one line

    bool takesArgument() const { return flags & TakesArgument; }
    bool hasFreeKeys() const { return flags & FreeKeys; }
    bool isUnknown() const { return flags & Unknown; }
    bool isSubGroup() const { return flags & SubGroup; }
    bool isDeprecated() const { return replacement.size() > 0; }
    bool belongsIn(FileKind kind) const { return files & (1 << int(kind)); }

    /// The description in the program's language.
    QString meaning() const { return translatedDescription(description); }

    const KeyInfo* begin() const { return keys; }
    const KeyInfo* end() const { return keys + keyCount; }

    /// The row of a key, old keys included; null if the group has no such key. In a group with free
    /// keys and in an unknown group: the row for all keys.
    const KeyInfo* key(const QStringRef& keyName) const;
};

}  // namespace Family
