#pragma once

#include <QString>

namespace Zorv {
class CodeDocument;
}

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Opens a code file, of the kind of its suffix. `codec` is a number of
/// `Zorv::TextCodecs`, negative to detect. The caller owns the document. Null if
/// it cannot be read; `error` takes the reason. The file is not watched.
Family::FamilyDocument* openDocument(const QString& fileName, int codec, QString* error);

/// A codec in which a file comes back byte for byte, line ends aside; -1 if
/// there is none, or the file cannot be read.
int faithfulCodec(const QString& fileName);

/// Tells the person if the file of a document that has just been opened would
/// not come back from its codec, and offers one in which it does; the file is
/// read again in that one. Asks through `Zorv::Dialogs`. True if the document is
/// faithful afterwards.
bool ensureFaithful(Zorv::CodeDocument* document);

/// The first character that the codec of a document lacks, with its line, in
/// words for the person; empty if it has all of them.
QString encodingObstacle(const Zorv::CodeDocument* document);

/// What the first save does to the line ends of a file, in words; empty if
/// they stay.
QString lineEndNote(const Zorv::CodeDocument* document);

/// Offers UTF-8, through `Zorv::Dialogs`, for a document whose codec lacks one of
/// its characters. False if the person gives up.
bool settleEncoding(Zorv::CodeDocument* document);

/// How a save ended.
enum class Saved {
    Done,
    GivenUp,  ///< the person was asked and told not to save; nothing is written
    Failed    ///< the old file is whole, the document stays modified
};

/// Writes a document. A character that its codec lacks is told before anything
/// is written, and UTF-8 offered, through `Zorv::Dialogs`. `error` takes the
/// reason of a failure.
Saved saveDocument(Zorv::CodeDocument* document, const QString& fileName, QString* error);

}  // namespace Operations
