#pragma once

#include <QImage>

namespace Zorv {

/// The bits of a pixel as this library's files count them, 0 for a format that it does not
/// know. `Format_RGB32` counts as 24, though its pixels take four bytes.
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

}  // namespace Zorv
