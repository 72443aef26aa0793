#include "media/bitmapinfoheader.h"

#include <QDataStream>

namespace Zorv {

QDataStream& operator>>(QDataStream& stream, BITMAPINFOHEADER& header)
{
    return stream >> header.biSize >> header.biWidth >> header.biHeight >> header.biPlanes >>
           header.biBitCount >> header.biCompression >> header.biSizeImage >>
           header.biXPelsPerMeter >> header.biYPelsPerMeter >> header.biClrUsed >>
           header.biClrImportant;
}

}  // namespace Zorv
