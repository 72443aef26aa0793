#pragma once

#include "zorv_export.h"

class QImage;
class QIODevice;

namespace Zorv {

/// Reads a stream into an image, whose size ends the stream.
///
/// RLE5 holds pixels of five bits in packets of a run and single repeats, for images of
/// `Format_Indexed8`. RLE8 holds bytes; pairs of a count, marked by the top bits 01, and a
/// value stand for runs. The device is opened if it is not readable yet. False if it
/// cannot be, and for a stream that ends inside of a packet, with what was decoded left in the
/// image; one that ends between two packets is not known to be too short. Any bytes are safe.
/// Re-entrant.
ZORV_EXPORT bool loadRLE5(QImage& image, QIODevice* device);
ZORV_EXPORT bool loadRLE8(QImage& image, QIODevice* device);

/// Writes nothing and gives false: RLE5 is read, never written.
ZORV_EXPORT bool saveRLE5(const QImage& image, QIODevice* device);

/// Writes an RLE8 stream. Runs cross line ends. False if the device cannot be opened or
/// written.
ZORV_EXPORT bool saveRLE8(const QImage& image, QIODevice* device);

}  // namespace Zorv
