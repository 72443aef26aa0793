#pragma once

#include "grammar/groupinfo.h"

#include <QVector>

namespace Family {

/// Access to the tables of the grammar: the parser, the completer and the
/// checks read the same rows. All rows live as long as the program.
class Grammar
{
public:
    /// Every row, groups in front of their sub-groups, old names behind.
    static const QVector<const GroupInfo*>& groups();

    /// The row of a number; never null: an unknown number gives the row that
    /// stands for unknown groups.
    static const GroupInfo* group(unsigned number);

    /// The row of a name, null for an unknown one. `parent` is the number of
    /// the group above, 0 for a group that is no sub-group.
    static const GroupInfo* find(const QStringRef& name, unsigned parent);

    /// The number of an unknown sub-group of `parent`. It differs for each
    /// parent, since what follows is read by it.
    static unsigned unknownSubGroup(unsigned parent);

    /// The number of an unknown group.
    static constexpr unsigned UnknownGroup = 99;

    /// The number of the group that a group of `number` belongs to; itself if
    /// it is no sub-group.
    static unsigned mainGroup(unsigned number);

    /// The names of the options of a frame line, in the order of the docs.
    static QStringList frameOptions();

    /// The words that start a line: "animation", "frame", "attack", "body".
    static QStringList keywords();

    static constexpr char CommentChar = '#';
};

/// The word of `candidates` that `name` was probably meant to be; empty if none is near.
QString nearName(const QString& name, const QStringList& candidates);

/// `name` between single quotes is what messages show: cut to a readable length.
QString quotedForMessage(const QString& name);

}  // namespace Family
