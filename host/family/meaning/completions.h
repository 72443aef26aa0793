#pragma once

#include <QString>
#include <QVector>

namespace Family {

class FamilyDocument;
class FamilyProject;

/// A word that can be inserted, with a one-line description.
struct WordOffer
{
    QString word;
    QString description;
};

/// What can be inserted at a position of a document.
struct Completions
{
    QVector<WordOffer> words;  ///< unsorted, may contain duplicates

    /// The columns of the word to replace; both are the position itself if there is none.
    int start = 0;
    int end = 0;
};

/// The words that the grammar and the project offer at a line and column, from 0: groups,
/// sub-groups, keys, choices, names of animations, commands and moves, files, options of a frame.
/// `project` is the document's project, or null.
Completions completionsAt(const FamilyDocument* document, const FamilyProject* project, int line,
                          int column);

}  // namespace Family
