#pragma once

#include "zorv_export.h"

#include <QtGlobal>

class QDataStream;

namespace Zorv {

/// The 40 bytes behind the file header of a BMP file, in their order; little-endian.
struct BITMAPINFOHEADER
{
    quint32 biSize = 0;
    qint32 biWidth = 0;
    qint32 biHeight = 0;  ///< negative for a picture from top to bottom
    quint16 biPlanes = 0;
    quint16 biBitCount = 0;
    quint32 biCompression = 0;
    quint32 biSizeImage = 0;
    qint32 biXPelsPerMeter = 0;
    qint32 biYPelsPerMeter = 0;
    quint32 biClrUsed = 0;
    quint32 biClrImportant = 0;
};

/// Reads the header field by field. The stream has to be little-endian.
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, BITMAPINFOHEADER& header);

}  // namespace Zorv
