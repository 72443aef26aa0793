#pragma once

#include <QString>
#include <QStringList>

namespace Family {

class FamilyDocument;
class FamilyProject;

/// What a word of a line means, as plain texts for the person.
struct WordMeaning
{
    QString title;      ///< the word as it is to be read; empty if nothing is known
    QStringList lines;  ///< what it is, what it takes

    /// The columns of the word, from its first to behind its last character.
    int start = 0;
    int end = 0;

    bool isEmpty() const { return title.isEmpty(); }
};

/// The meaning of what stands at a line and column, from 0: a group, a key or its
/// value, an animation, a frame with its options, a contact box. `project` is the
/// document's, or null for none.
WordMeaning meaningAt(const FamilyDocument* document, const FamilyProject* project, int line,
                      int column);

}  // namespace Family
