#pragma once

#include "operations/find/textsearch.h"

namespace Zorv {
class CodeDocument;
}

namespace Operations {

/// What replaces matches.
struct Replacing
{
    const FindPattern& pattern;
    QString with;  ///< as the user typed it

    /// The matches to replace, as found by a search; null for all. If one of them no longer exists,
    /// nothing is replaced.
    const QVector<FindHit>* chosen = nullptr;
};

/// The new text and the number of replaced matches; -1 if the text has changed since the search.
struct Replaced
{
    int count = 0;
    QString text;
};

/// The text after replacing; lines end in '\n'.
Replaced replacedText(const QString& text, const Replacing& replacing);

/// Replaces in the text of a document, as one undo step; the file is not written. Returns the
/// number of matches, or -1, with `error` for the user, if nothing was changed.
int replaceInDocument(Zorv::CodeDocument* document, const Replacing& replacing, QString* error);

/// Replaces in a file that no document holds, and detects changes by other programs meanwhile. Line
/// ends, encoding, byte-order mark and all other bytes stay the same. Writes nothing without a
/// match. Returns the number of matches, or -1, with `error` for the user, if the file is
/// unchanged: it is not writable, has changed since the search, cannot be encoded back byte for
/// byte, or its encoding lacks a character.
int replaceInFile(const QString& path, const Replacing& replacing, QString* error);

}  // namespace Operations
