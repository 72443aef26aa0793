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
    unsigned short value;   ///< for a run its pixel; for a copy the distance back, from 1
    short length;           ///< number of pixels covered
};

/// Reads an LZ5 stream into an image of `Format_Indexed8`. The size of the image determines where
/// the stream ends.
///
/// In runs, pixels have five bits. The device is opened if it is not readable yet. False if that
/// fails, or if the stream ends inside a packet; the pixels decoded so far are in the image. A
/// stream that ends between two packets cannot be recognised as too short. Any input is safe.
/// Pixels that the stream does not reach, and copies from before the start of the image, become
/// index 0. Re-entrant.
ZORV_EXPORT bool loadLZ5(QImage& image, QIODevice* device);

/// Writes an LZ5 stream. The choice of packets is part of the format: equal images give equal
/// bytes. Indices of 32 and above silently lose their upper bits. Without `useLz`, only run packets
/// are written. False if the device cannot be opened or written.
ZORV_EXPORT bool saveLZ5(const QImage& image, QIODevice* device, bool useLz);

/// The match that the LZ5 encoder chooses at a pixel; `length` is 0 if there is none.
///
/// `data` points at the pixel and `position` is its index in an image of `total` pixels. All pixels
/// must be readable, including those before `data`. The longest match wins, and among equals the
/// smallest distance, 2 to 1024. A match needs a length and a number of colour changes that make a
/// packet worthwhile. Pixels after the last one count as index 0.
ZORV_EXPORT QPack lzFind(const unsigned char* data, int position, unsigned int total);

}  // namespace Zorv
