#pragma once

#include <zorv/image/canvas/canvasrecord.h>

#include <QString>

class QByteArray;
class QIODevice;

namespace Operations {

/// What is on a canvas, and the sprite that it is of, as a recovery copy has it.
struct CanvasCopy
{
    QString identifier;  ///< of the sprite
    int row = -1;        ///< of the sprite in its file; -1 if it is not there any more
    Zorv::CanvasRecord record;

    /// Lines that tell what it is.
    QString lines() const;

    /// False if the device takes not all.
    bool write(QIODevice* device) const;

    /// False for anything but the whole of one.
    bool read(const QByteArray& bytes);

    /// As a PNG file; empty if there is not enough memory.
    QByteArray picture() const;
};

}  // namespace Operations
