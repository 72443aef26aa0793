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
    int ticks = 1;    ///< duration in 1/60 second, at least 1
};

/// Options for writing an animated GIF.
struct GIFOptions
{
    int loops = 0;        ///< number of repetitions; 0 is endless, -1 plays once
    QRgb background = 0;  ///< shown through transparent pixels; alpha 0 keeps them transparent
};

/// Writes an animated GIF that shows exactly the given frames.
///
/// Ticks are converted to hundredths of a second without drift: the end of each frame is rounded,
/// not its length. Of each frame only the changed rectangle is written, with unchanged pixels
/// transparent where that is smaller. The frames share one colour table as long as their colours
/// fit. A pixel with alpha below 128 is transparent, any other opaque. A frame of more than 256
/// colours is quantized; transparent counts as one colour. A frame longer than 655 seconds is
/// repeated. False for no frames, a canvas above 65535 on a side, an image above 2^28 pixels, or a
/// device that fails. Re-entrant.
ZORV_EXPORT bool saveGIF(QIODevice* device, const QVector<GIFFrame>& frames,
                         const GIFOptions& options = {});

}  // namespace Zorv
