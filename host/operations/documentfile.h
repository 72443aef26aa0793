#pragma once

#include <QString>

namespace Zorv {
class CodeDocument;
}

namespace Family {
class FamilyDocument;
}  // namespace Family

namespace Operations {

/// Opens a code file; its suffix decides the kind. `codec` is an index in `Zorv::TextCodecs`,
/// negative to detect it. The caller owns the document. Null, with `error`, if the file cannot be
/// read. The file is not watched.
Family::FamilyDocument* openDocument(const QString& fileName, int codec, QString* error);

/// A codec that decodes and encodes a file without changing a byte, line ends aside; -1 if there is
/// none or the file cannot be read.
int faithfulCodec(const QString& fileName);

/// Warns the user, through `Zorv::Dialogs`, if a newly opened document would not be saved byte for
/// byte in its codec. Offers a codec that is faithful and reloads the file in it. Returns true if
/// the document is faithful afterwards.
bool ensureFaithful(Zorv::CodeDocument* document);

/// A text for the user about the first character that the codec of a document cannot encode, with
/// its line; empty if it can encode all.
QString encodingObstacle(const Zorv::CodeDocument* document);

/// A text about what the first save does to the line ends of a file; empty if they stay.
QString lineEndNote(const Zorv::CodeDocument* document);

/// Offers UTF-8, through `Zorv::Dialogs`, if the codec of a document cannot encode one of its
/// characters. False if the user cancels.
bool settleEncoding(Zorv::CodeDocument* document);

/// The result of a save.
enum class Saved {
    Done,
    GivenUp,  ///< the user was asked and decided not to save; nothing is written
    Failed    ///< the old file is intact, the document stays modified
};

/// Writes a document. If its codec cannot encode a character, the user is asked first, through
/// `Zorv::Dialogs`, and can choose UTF-8. `error` takes the reason of a failure.
Saved saveDocument(Zorv::CodeDocument* document, const QString& fileName, QString* error);

}  // namespace Operations
