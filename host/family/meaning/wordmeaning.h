#pragma once

#include <QString>
#include <QStringList>

namespace Family {

class FamilyDocument;
class FamilyProject;

/// The meaning of a word in a line, as plain texts for the user.
struct WordMeaning
{
    QString title;      ///< the word in its full form; empty if nothing is known
    QStringList lines;  ///< what it is and what it takes

    /// The columns of the word; `end` is after its last character.
    int start = 0;
    int end = 0;

    bool isEmpty() const { return title.isEmpty(); }
};

/// The meaning of the word at a line and column (from 0): a group, a key or its value, an
/// animation, a frame with its options, a contact box. `project` is the document's project, or
/// null.
WordMeaning meaningAt(const FamilyDocument* document, const FamilyProject* project, int line,
                      int column);

}  // namespace Family
