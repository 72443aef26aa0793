#pragma once

#include <QString>
#include <QVector>

#include <atomic>

namespace Operations {

class ByteFilter;
class FindPattern;

/// A place where a pattern matches.
struct FindHit
{
    int start;   ///< position in the text; a line end counts as one character
    int length;  ///< 0 for an expression that matches an empty string
    int line;    ///< from 0
    int column;

    /// The text to show of the line where the match starts: the whole line, or a part of a long
    /// one.
    QString shown;
    int shownStart;  ///< start of the match in `shown`; the match may extend beyond it

    bool operator==(const FindHit& other) const
    {
        return start == other.start && length == other.length && line == other.line &&
               column == other.column && shown == other.shown;
    }
};

/// What a search found in a file, or why it failed.
struct FileHits
{
    QString path;
    QVector<FindHit> hits;
    bool isCut = false;  ///< there are more hits than the limit
    QString error;       ///< for the user
};

/// A flag that ends a search early, from any thread.
using StopFlag = std::atomic_bool;

/// Finds matches in a text, in order and without overlaps. For any thread.
///
/// @param text in the form of `Zorv::CodeFind::searchableText()`
/// @param most maximum number of hits
FileHits searchText(const QString& text, const FindPattern& pattern, int most,
                    const StopFlag& isStopped);

/// Finds matches in a file, with the same positions as in its document. UTF-8 files are filtered as
/// bytes and decoded only if the filter lets them pass. For any thread.
FileHits searchFile(const QString& path, const FindPattern& pattern, const ByteFilter& filter,
                    int most, const StopFlag& isStopped);

}  // namespace Operations
