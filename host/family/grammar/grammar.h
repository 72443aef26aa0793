#pragma once

#include "family/grammar/groupinfo.h"

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

    /// The number of an unknown sub-group of the group `parent`, or of a
    /// sub-group without a group above for 0. It differs for each parent, since
    /// a sub-group that follows is read by it.
    static unsigned unknownSubGroup(unsigned parent);

    /// The number of an unknown group.
    static constexpr unsigned UnknownGroup = 99;

    /// The number of the group that a group of `number` belongs to; itself if
    /// it is no sub-group, 0 for a sub-group without one.
    static unsigned mainGroup(unsigned number);

    /// The row of keys that are in no table; its form is `Form::Any`.
    static const KeyInfo* unknownKey();

    /// The names of the options of a frame line, in the order of the docs.
    static QStringList frameOptions();

    /// The words that start a line: "animation", "frame", "attack", "body".
    static QStringList keywords();

    /// What a keyword stands for, in the language of the program; empty for another word.
    static QString keywordMeaning(const QString& keyword);

    static constexpr char CommentChar = '#';
};

/// The word of `candidates` that `name` was probably meant to be; empty if none is near.
QString nearName(const QString& name, const QStringList& candidates);

/// What a message shows of a text: in single quotes and cut to a readable
/// length, or "the end of the line" for none.
QString quoted(const QStringRef& text);

/// A hint at the names that would have been right: "Did you mean 'life'?", or
/// all of them if none is near.
QString nameHint(const QString& name, const QStringList& candidates);

}  // namespace Family
