#pragma once

#include <QString>
#include <QVector>

namespace Family {

class FamilyDocument;
class FamilyProject;

/// A word that can be written, and one line on what it is.
struct WordOffer
{
    QString word;
    QString description;
};

/// What can be written at a place of a document.
struct Completions
{
    QVector<WordOffer> words;  ///< in no order, some of them perhaps twice

    /// The columns of the word that another one replaces; both the place itself if
    /// there is none.
    int start = 0;
    int end = 0;
};

/// The words that the grammar and the project offer at a line and column, from 0:
/// groups, sub-groups, keys, choices, names of animations, commands and moves, files,
/// options of a frame. `project` is the document's, or null for none.
Completions completionsAt(const FamilyDocument* document, const FamilyProject* project, int line,
                          int column);

}  // namespace Family
