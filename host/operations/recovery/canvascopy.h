#pragma once

#include <zorv/image/canvas/canvasrecord.h>

#include <QString>

class QByteArray;
class QIODevice;

namespace Operations {

/// The content of a canvas and the sprite that it belongs to, for a recovery copy.
struct CanvasCopy
{
    QString identifier;  ///< of the sprite
    int row = -1;        ///< of the sprite in its file; -1 if it is no longer there
    Zorv::CanvasRecord record;

    /// A description as lines of text.
    QString lines() const;

    /// False if not everything could be written.
    bool write(QIODevice* device) const;

    /// False unless the bytes are a complete copy.
    bool read(const QByteArray& bytes);

    /// The canvas as a PNG file; empty if memory runs out.
    QByteArray picture() const;
};

}  // namespace Operations
