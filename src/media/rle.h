#pragma once

#include "zorv_export.h"

class QImage;
class QIODevice;

namespace Zorv {

/// Reads a stream into an image. The size of the image determines where the stream ends.
///
/// RLE5 stores pixels of five bits, in packets of a run followed by single repeats, for images of
/// `Format_Indexed8`. RLE8 stores bytes; a run is a pair of a count, marked by the top bits 01, and
/// a value. The device is opened if it is not readable yet. False if that fails, or if the stream
/// ends inside a packet; the pixels decoded so far are in the image. A stream that ends between two
/// packets cannot be recognised as too short. Any input is safe. Re-entrant.
ZORV_EXPORT bool loadRLE5(QImage& image, QIODevice* device);
ZORV_EXPORT bool loadRLE8(QImage& image, QIODevice* device);

/// Writes nothing and returns false: RLE5 is read-only.
ZORV_EXPORT bool saveRLE5(const QImage& image, QIODevice* device);

/// Writes an RLE8 stream. Runs continue across line ends. False if the device cannot be opened or
/// written.
ZORV_EXPORT bool saveRLE8(const QImage& image, QIODevice* device);

}  // namespace Zorv
