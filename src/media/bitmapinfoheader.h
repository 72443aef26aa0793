#pragma once

#include "zorv_export.h"

#include <QtGlobal>

class QDataStream;

namespace Zorv {

/// The 40 bytes after the file header of a BMP file, in file order; little-endian.
struct BITMAPINFOHEADER
{
    quint32 biSize = 0;
    qint32 biWidth = 0;
    qint32 biHeight = 0;  ///< negative: rows are stored top to bottom
    quint16 biPlanes = 0;
    quint16 biBitCount = 0;
    quint32 biCompression = 0;
    quint32 biSizeImage = 0;
    qint32 biXPelsPerMeter = 0;
    qint32 biYPelsPerMeter = 0;
    quint32 biClrUsed = 0;
    quint32 biClrImportant = 0;
};

/// Reads the header field by field. The stream must be little-endian.
ZORV_EXPORT QDataStream& operator>>(QDataStream& stream, BITMAPINFOHEADER& header);

}  // namespace Zorv
