#pragma once

#include "zorv_export.h"

class QImage;
class QIODevice;

namespace Zorv {

/// One planned packet of an LZ5 stream.
struct QPack
{
    unsigned char isLz;     ///< 1 for a copy packet, 0 for a run packet
    unsigned char isShort;  ///< 1 for the short form
    unsigned short value;   ///< the pixel of a run; the distance back of a copy, from 1
    short length;           ///< pixels covered
};

/// Reads an LZ5 stream into an image of `Format_Indexed8`, whose size ends the stream.
///
/// Pixels are five bits wide in runs. The device is opened if it is not readable
/// yet. False if it cannot be, and for a stream that ends inside of a packet, with what was
/// decoded left in the image; one that ends between two packets is not known to be too short.
/// Any bytes are safe: a distance that leads in front of the image gives pixels of index 0, as
/// those are that the stream does not reach. Re-entrant.
ZORV_EXPORT bool loadLZ5(QImage& image, QIODevice* device);

/// Writes an LZ5 stream. The choice of packets is part of the format: equal images give
/// equal bytes. Indices of 32 and more lose their upper bits, without a word. Without `useLz` the
/// stream holds run packets only. False if the device cannot be opened or written.
ZORV_EXPORT bool saveLZ5(const QImage& image, QIODevice* device, bool useLz);

/// The match that an LZ5 stream takes at a pixel: `length` is 0 if there is none.
///
/// `data` points at the pixel, `position` is its index in an image of `total` pixels, all of
/// which are readable, those in front of `data` too. The longest match wins whose length
/// and number of changes make a packet worth while, of the smallest distance, 2 to 1024.
/// Behind the last pixel counts as index 0.
ZORV_EXPORT QPack lzFind(const unsigned char* data, int position, unsigned int total);

}  // namespace Zorv
