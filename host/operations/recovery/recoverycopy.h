#pragma once

#include "family/grammar/filekind.h"
#include "operations/filestamp.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

class QIODevice;

namespace Operations {

/// A copy of unsaved work, with everything needed to restore it.
///
/// File format, all big endian: "ZORVCOPY", the version (32 bits), the length of the data after the
/// header (64 bits), its SHA-256 (32 bytes). Then the fields in the order below as `QDataStream`
/// writes them, and the bytes of sprites and sounds in their file format, or of a canvas. A single
/// wrong or missing byte makes the whole copy unreadable.
struct RecoveryCopy
{
    enum Content { Document, Sprites, Sounds, Canvas };

    QString fileName;    ///< empty for a file that was never saved
    QString mainFile;    ///< of the project; empty likewise
    QString gameFolder;  ///< with "/" at its end; empty if there was none
    Family::FileKind kind = Family::FileKind::Code;  ///< for a text
    QString codec;                                   ///< likewise
    QDateTime time;                                  ///< when the copy was made
    FileStamp stamp;                                 ///< the file when the work began
    QString text;  ///< lines end in a line feed; for a canvas its description
    Content content = Document;
    QStringList images;  ///< for a loose folder, see `Family::AssetSnapshot`
    QByteArray assets;   ///< a sprite file, a sound file, or a `CanvasCopy`

    /// Writes the copy to a seekable device. `writeAssets` writes the bytes that reading returns in
    /// `assets`. False if not everything could be written.
    bool write(QIODevice* device, const std::function<bool(QIODevice*)>& writeAssets = {}) const;

    /// Reads a copy. Returns false with `error` for the user, and changes nothing, unless the bytes
    /// are a complete copy.
    bool fromBytes(const QByteArray& bytes, QString* error);
};

}  // namespace Operations
