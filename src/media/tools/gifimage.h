#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

class QIODevice;

namespace Zorv {

/// A GIF file: a canvas, a global colour table and frames.
///
/// A plain value. It reads and writes through giflib what the file holds, frame by frame, and
/// composes nothing.
struct ZORV_EXPORT GIFImage
{
    /// How a frame leaves the canvas for the next one.
    enum Disposal {
        Unspecified = 0,
        Keep = 1,
        ToBackground = 2,  ///< its rectangle becomes transparent
        ToPrevious = 3     ///< its rectangle becomes what it was before
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
    int loops = -1;  ///< how often it is shown again; 0 without end, -1 not told
    QVector<SubImage> images;

    /// Reads a file. False if it is none, or is broken; what was whole before the fault is
    /// kept. Frames are refused that declare more pixels than the file could hold, or 2^31. Any
    /// bytes are safe. Re-entrant.
    bool load(QIODevice* device);

    /// Writes a file; tables are filled up to a power of two. False if giflib or the device
    /// fails, or a size is out of range.
    bool save(QIODevice* device) const;
};

}  // namespace Zorv
