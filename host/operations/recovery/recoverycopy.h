#pragma once

#include "family/grammar/filekind.h"
#include "operations/filestamp.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

class QIODevice;

namespace Operations {

/// Unsaved work that was put aside, with all that is needed to bring it back.
///
/// As bytes: "ZORVCOPY", the version (32 bits), the length of what follows the
/// head (64 bits), its SHA-256 (32 bytes), all big endian; then the fields in the
/// order below as `QDataStream` writes them, and the bytes of sprites and sounds as their
/// files have them, or those of a canvas. A single byte that is wrong or missing makes the copy
/// unreadable as a whole.
struct RecoveryCopy
{
    enum Content { Document, Sprites, Sounds, Canvas };

    QString fileName;    ///< empty for a file that was never saved
    QString mainFile;    ///< of the project; empty likewise
    QString gameFolder;  ///< with "/" at its end; empty if there was none
    Family::FileKind kind = Family::FileKind::Code;  ///< of a text
    QString codec;                                   ///< likewise
    QDateTime time;                                  ///< when the copy was made
    FileStamp stamp;                                 ///< the file that the work began with
    QString text;  ///< lines end in a line feed; of a canvas those that tell what it is
    Content content = Document;
    QStringList images;  ///< of a loose folder, see `Family::AssetSnapshot`
    QByteArray assets;   ///< a sprite file, a sound file, or a `CanvasCopy`

    /// Writes the copy to a device that can seek; `writeAssets` gives what `assets` holds when it
    /// is read again. False if the device takes not all.
    bool write(QIODevice* device, const std::function<bool(QIODevice*)>& writeAssets = {}) const;

    /// False, with `error` for the person, for anything but the whole of a copy;
    /// the copy is as it was then.
    bool fromBytes(const QByteArray& bytes, QString* error);
};

}  // namespace Operations
