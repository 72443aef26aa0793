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
    int start;   ///< in the text, with one character for each line end
    int length;  ///< 0 for an expression that matches nothing but a place
    int line;    ///< from 0
    int column;

    /// What is shown of the line of its start: all, or a part of a long one.
    QString shown;
    int shownStart;  ///< of the match in it; it can end beyond it

    bool operator==(const FindHit& other) const
    {
        return start == other.start && length == other.length && line == other.line &&
               column == other.column && shown == other.shown;
    }
};

/// What a search has found in a file, or why it found nothing.
struct FileHits
{
    QString path;
    QVector<FindHit> hits;
    bool isCut = false;  ///< there are more: the last ones are left out
    QString error;       ///< in words for the person
};

/// Ends a search early, from any thread.
using StopFlag = std::atomic_bool;

/// The places of a text, in order and none over another. For any thread.
///
/// @param text as `Zorv::CodeFind::searchableText()` gives it
/// @param most hits
FileHits searchText(const QString& text, const FindPattern& pattern, int most,
                    const StopFlag& isStopped);

/// The places of a file, as its document has them. Files in UTF-8 are looked through as bytes, and
/// decoded only if the filter lets them pass. For any thread.
FileHits searchFile(const QString& path, const FindPattern& pattern, const ByteFilter& filter,
                    int most, const StopFlag& isStopped);

}  // namespace Operations
