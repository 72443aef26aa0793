#pragma once

#include "zorv_export.h"

#include <QImage>
#include <QPoint>
#include <QVector>

class QIODevice;

namespace Zorv {

/// One picture of an animation.
struct GIFFrame
{
    QImage image;     ///< indexed with a colour table, or of 32 bits
    QPoint position;  ///< of its top left corner; the canvas is the rectangle around all frames
    int ticks = 1;    ///< of 1/60 second, at least 1
};

/// How an animated GIF is written.
struct GIFOptions
{
    int loops = 0;        ///< how often it is shown again; 0 without end, -1 once
    QRgb background = 0;  ///< shown through transparent pixels; alpha 0 keeps them transparent
};

/// Writes an animated GIF that shows exactly the frames, one by one.
///
/// Ticks are carried to hundredths of a second without drift: the end of each frame is rounded,
/// not its length. Of each frame only the rectangle that has changed is written, with what is the
/// same in it transparent where that is smaller; the frames share one colour table as long as their
/// colours fit. A pixel with alpha below 128 is transparent, any other opaque. A frame of more than
/// 256 colours, what is transparent counting as one, is quantized. A frame longer than 655 seconds
/// is repeated. False for no frame, a canvas beyond 65535 each way, an image beyond 2^28 pixels, or
/// a device that fails. Re-entrant.
ZORV_EXPORT bool saveGIF(QIODevice* device, const QVector<GIFFrame>& frames,
                         const GIFOptions& options = {});

}  // namespace Zorv
