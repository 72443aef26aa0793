#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Archive;

/// The text of a file as a `CodeDocument` would load it, with facts about the file.
///
/// A document belongs to the main thread. With this class a host can read many files in any thread,
/// with the same result as a document.
struct ZORV_EXPORT FileText
{
    QString text;                     ///< like `CodeDocument::text()`: lines end in '\n'
    int codec = 0;                    ///< a number of `TextCodecs`
    bool hasMark = false;             ///< the file begins with a byte-order mark
    bool hasForeignLineEnds = false;  ///< some lines do not end with "\r\n"
    bool isFaithful = true;  ///< the codec reproduces the file byte for byte, except line ends

    /// Reads a whole file. A negative `wanted` detects the codec. Returns false, with `error` in
    /// words for the user, if the file cannot be read or is too large for a document. Nothing
    /// changes then.
    bool read(Archive& archive, const QString& fileName, int wanted, QString* error);
};

}  // namespace Zorv
