#pragma once

#include "zorv_export.h"

#include <QString>

namespace Zorv {

class Archive;

/// The text of a file as a `CodeDocument` takes it over, with what it keeps of the file.
///
/// A document belongs to the main thread. A host that has to know what many files say reads them
/// by this in any thread, and finds what a document would have.
struct ZORV_EXPORT FileText
{
    QString text;                     ///< as `CodeDocument::text()` gives it: lines end in '\n'
    int codec = 0;                    ///< a number of `TextCodecs`
    bool hasMark = false;             ///< a byte-order mark stands at the head of the file
    bool hasForeignLineEnds = false;  ///< some line ends otherwise than "\r\n"
    bool isFaithful = true;  ///< the codec gives the file back byte for byte, line ends aside

    /// Reads a whole file. A negative `wanted` codec detects. False, with `error` in words for the
    /// person, if it cannot be read or is larger than a document can hold; nothing changes then.
    bool read(Archive& archive, const QString& fileName, int wanted, QString* error);
};

}  // namespace Zorv
