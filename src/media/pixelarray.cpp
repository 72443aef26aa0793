#include "media/pixelarray_p.h"

#include <QImage>

#include <cstring>
#include <new>

namespace Zorv {

PixelArray::PixelArray(qint64 size)
    : m_bytes(new (std::nothrow) uchar[size_t(Front + size + Behind)]), m_size(size)
{
    if (!isNull()) {
        std::memset(m_bytes.get(), 0, Front);
        std::memset(end(), 0, Behind);
    }
}

PixelArray::PixelArray(const QImage& image, int lineLength)
    : PixelArray(qint64(lineLength) * image.height())
{
    if (isNull()) {
        return;
    }
    const int present = qMin(lineLength, image.bytesPerLine());
    uchar* at = begin();
    for (int y = 0; y < image.height(); ++y, at += lineLength) {
        std::memcpy(at, image.constScanLine(y), size_t(present));
        std::memset(at + present, 0, size_t(lineLength - present));
    }
}

qint64 LineLayout::capacity(qint64 memory) const
{
    if (line == 0) {
        return memory;
    }
    const qint64 stride = line + skip;
    return memory / stride * line + qMin(line, memory % stride);
}

void LineLayout::place(QImage& image, const uchar* bytes, qint64 count) const
{
    uchar* to = image.bits();
    for (const qint64 whole = line == 0 ? count : line; count > 0; count -= whole) {
        const qint64 size = qMin(count, whole);
        std::memcpy(to, bytes, size_t(size));
        bytes += size;
        to += size + skip;
    }
}

}  // namespace Zorv
