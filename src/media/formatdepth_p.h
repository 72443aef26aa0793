#pragma once

#include <QImage>

namespace Zorv {

/// The bits per pixel as this library's file formats count them; 0 for an unknown format.
/// `Format_RGB32` counts as 24 although its pixels take four bytes.
constexpr int formatDepth(QImage::Format format)
{
    switch (format) {
    case QImage::Format_Indexed8:
        return 8;
    case QImage::Format_RGB32:
        return 24;
    case QImage::Format_ARGB32:
        return 32;
    default:
        return 0;
    }
}

/// The image format for pixels of that many bits in a file; `Format_Invalid` if there is none.
constexpr QImage::Format formatOfDepth(int bits)
{
    switch (bits) {
    case 5:
    case 8:
        return QImage::Format_Indexed8;
    case 24:
        return QImage::Format_RGB32;
    case 32:
        return QImage::Format_ARGB32;
    default:
        return QImage::Format_Invalid;
    }
}

}  // namespace Zorv
