#pragma once

#include "operations/find/textsearch.h"

namespace Zorv {
class CodeDocument;
}

namespace Operations {

/// What takes the place of matches.
struct Replacing
{
    const FindPattern& pattern;
    QString with;  ///< as the person has written it

    /// The matches that are meant, as a search has found them; null for all. If one of them is no
    /// longer there, nothing is replaced.
    const QVector<FindHit>* chosen = nullptr;
};

/// A text, and how many matches were replaced in it: -1 if it is another one than was searched.
struct Replaced
{
    int count = 0;
    QString text;
};

/// What a text would become; lines end in '\n'.
Replaced replacedText(const QString& text, const Replacing& replacing);

/// Replaces in the text of a document, as one step of undo; the file stays as it is. Gives the
/// number of matches. -1, with `error` for the person, leaves all as it was.
int replaceInDocument(Zorv::CodeDocument* document, const Replacing& replacing, QString* error);

/// Replaces in a file that no document holds, as one change beside other programs. All else stays
/// byte for byte: line ends, the encoding, a byte-order mark. Without a match nothing is written.
/// Gives the number of matches. -1, with `error` for the person, leaves the file as it was: it
/// cannot be written, is not the one that was searched, would not come back from its encoding, or
/// the encoding lacks a character.
int replaceInFile(const QString& path, const Replacing& replacing, QString* error);

}  // namespace Operations
