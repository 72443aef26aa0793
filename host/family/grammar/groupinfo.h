#pragma once

#include "family/grammar/filekind.h"
#include "family/grammar/keyinfo.h"

namespace Family {

/// One kind of group: a row of a table. Texts are ASCII and static.
struct GroupInfo
{
    enum Flag { NoFlags = 0, TakesArgument = 1, FreeKeys = 2, Unknown = 4, SubGroup = 8 };

    unsigned number;     ///< of the nodes, above 0; two rows with one number are one kind
    unsigned parent;     ///< number of the group that a sub-group belongs to, else 0
    QLatin1String name;  ///< without brackets, dot and argument
    int flags;           ///< of `Flag`
    int files;           ///< bit `1 << FileKind` for each kind of file in which it counts
    const KeyInfo* keys;
    int keyCount;
    QLatin1String replacement;  ///< the new name of an old group, else empty
    QLatin1String description;  ///< one line

    bool takesArgument() const { return flags & TakesArgument; }
    bool hasFreeKeys() const { return flags & FreeKeys; }
    bool isUnknown() const { return flags & Unknown; }
    bool isSubGroup() const { return flags & SubGroup; }
    bool isDeprecated() const { return replacement.size() > 0; }
    bool belongsIn(FileKind kind) const { return files & (1 << int(kind)); }

    /// The description in the language of the program.
    QString meaning() const { return translatedDescription(description); }

    const KeyInfo* begin() const { return keys; }
    const KeyInfo* end() const { return keys + keyCount; }

    /// The row of a key, also of an old one; null if the group has none of that
    /// name. In a group with free keys, or an unknown one, the row of all keys.
    const KeyInfo* key(const QStringRef& keyName) const;
};

}  // namespace Family
