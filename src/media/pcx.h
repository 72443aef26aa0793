#pragma once

#include "zorv_export.h"

#include <QtGlobal>

class QDataStream;
class QImage;
class QIODevice;

namespace Zorv {

/// The 128-byte header of a PCX file, in file order; little-endian.
struct QPCXHeader
{
    quint8 manufacturer = 10;
    quint8 version = 5;
    quint8 encoding = 1;
    quint8 bitsPerPixel = 8;  ///< per plane
    quint16 left = 0;
    quint16 top = 0;
    quint16 right = 0;
    quint16 bottom = 0;
    quint16 horizontalResolution = 0;
    quint16 verticalResolution = 0;
    quint8 colorMap[48] = {};
    quint8 reserved = 0;
    quint8 planes = 1;
    quint16 bytesPerLine = 0;  ///< per plane
    quint16 paletteType = 1;
    quint8 filler[58] = {};
};

/// Read and write the header field by field. The stream must be little-endian.
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, QPCXHeader& header);
ZORV_EXPORT QDataStream& operator<<(QDataStream& stream, const QPCXHeader& header);

/// Reads a PCX file of 8 bits (`Format_Indexed8`), 24 (`Format_RGB32`) or 32 (`Format_ARGB32`).
/// `image` is replaced unless it already has that size and format.
///
/// The palette is found only if it directly follows the pixels and ends the file. The device is
/// opened if needed. False for another kind of PCX, for a size that the bytes cannot hold, and for
/// a truncated file; the pixels decoded so far are then in the image. Any input is safe.
/// Re-entrant.
ZORV_EXPORT bool loadPCX(QImage& image, QIODevice* device);

/// Writes an image of one of those formats. False if the device cannot be opened or written, for an
/// image of another format, and for a width or height above 65535.
ZORV_EXPORT bool savePCX(const QImage& image, QIODevice* device);

}  // namespace Zorv
