#pragma once

#include "family/grammar/groupinfo.h"

#include <QVector>

namespace Family {

/// Access to the tables of the grammar. Parser, completer and checks read the same rows. All rows
/// live as long as the program.
class Grammar
{
public:
    /// All rows: groups before their sub-groups, old names last.
    static const QVector<const GroupInfo*>& groups();

    /// The row with this number. Never null: an unknown number gives the row for unknown groups.
    static const GroupInfo* group(unsigned number);

    /// The row with this name; null if unknown. `parent` is the number of the group above, 0 for a
    /// main group.
    static const GroupInfo* find(const QStringRef& name, unsigned parent);

    /// The number of an unknown sub-group of the group `parent`; with 0, of a sub-group without a
    /// group above. It differs by parent, because it decides how the next sub-group is read.
    static unsigned unknownSubGroup(unsigned parent);

    /// The number of an unknown group.
    static constexpr unsigned UnknownGroup = 99;

    /// The number of the main group that the group `number` belongs to: itself if it is not a
    /// sub-group, 0 for a sub-group without a main group.
    static unsigned mainGroup(unsigned number);

    /// The row for keys that are in no table; its form is `Form::Any`.
    static const KeyInfo* unknownKey();

    /// The names of the options of a frame line, in the order of the documentation.
    static QStringList frameOptions();

    /// The words that start a line: "animation", "frame", "attack", "body".
    static QStringList keywords();

    /// The meaning of a keyword in the program's language; empty for another word.
    static QString keywordMeaning(const QString& keyword);

    static constexpr char CommentChar = '#';
};

/// The candidate that `name` was probably meant to be; empty if none is similar.
QString nearName(const QString& name, const QStringList& candidates);

/// How messages show a text: in single quotes and shortened, or "the end of the line" if empty.
QString quoted(const QStringRef& text);

/// A hint at the correct name: "Did you mean 'life'?", or all candidates if none is similar.
QString nameHint(const QString& name, const QStringList& candidates);

}  // namespace Family
