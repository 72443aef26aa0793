#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

class QIODevice;

namespace Zorv {

/// A GIF file: a canvas, a global colour table and frames.
///
/// A plain value. It reads and writes the contents of the file through giflib, frame by frame, and
/// composes nothing.
struct ZORV_EXPORT GIFImage
{
    /// What happens to the canvas after a frame.
    enum Disposal {
        Unspecified = 0,
        Keep = 1,
        ToBackground = 2,  ///< the frame's rectangle becomes transparent
        ToPrevious = 3     ///< the frame's rectangle is restored
    };

    /// One frame.
    struct SubImage
    {
        QImage image;         ///< `Format_Indexed8`, without a colour table
        QVector<RGB> colors;  ///< local colour table; empty for the global one
        int left = 0;         ///< place on the canvas
        int top = 0;
        int transparent = -1;  ///< index of the transparent colour, or -1
        int delay = 0;         ///< hundredths of a second
        Disposal disposal = Unspecified;
        bool interlaced = false;
    };

    QSize size;           ///< of the canvas, 1 to 65535 each way
    QVector<RGB> colors;  ///< global colour table, up to 256; may be empty
    int background = 0;
    int loops = -1;  ///< number of repetitions; 0 is endless, -1 unspecified
    QVector<SubImage> images;

    /// Reads a file. False if it is not a GIF or is broken; everything before the error is kept.
    /// Refuses frames that declare 2^31 pixels or more than the file can hold. Any input is safe.
    /// Re-entrant.
    bool load(QIODevice* device);

    /// Writes a file. Colour tables are padded to a power of two. False if giflib or the device
    /// fails, or a size is out of range.
    bool save(QIODevice* device) const;
};

}  // namespace Zorv
