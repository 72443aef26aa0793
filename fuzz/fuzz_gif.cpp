#include "media/tools/gifimage.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

using Zorv::GIFImage;

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

static GIFImage read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    GIFImage gif;
    gif.load(&buffer);
    return gif;
}

/// Any bytes are read; the frames that are whole can be written, and read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    GIFImage gif = read(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), int(size)));
    qint64 pixels = 0;
    for (const GIFImage::SubImage& frame : qAsConst(gif.images)) {
        require(frame.image.format() == QImage::Format_Indexed8);
        pixels += qint64(frame.image.width()) * frame.image.height();
    }
    // Writing takes its time, and shows nothing new on large frames.
    if (gif.images.isEmpty() || pixels > 1 << 16) {
        return 0;
    }
    QByteArray written;
    QBuffer buffer(&written);
    buffer.open(QIODevice::WriteOnly);
    require(gif.save(&buffer));
    const GIFImage back = read(written);
    require(back.images.size() == gif.images.size());
    for (int i = 0; i < back.images.size(); ++i) {
        require(back.images[i].image.size() == gif.images[i].image.size());
        require(back.images[i].delay == gif.images[i].delay);
    }
    return 0;
}
