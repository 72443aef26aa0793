#include "media/pcx.h"

#include "support/plaincodecs.h"

#include <QBuffer>
#include <QImage>

#include <cstdint>
#include <cstdlib>
#include <cstring>

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

/// A file, read as a stream reads it a byte at a time if it is small; what was read is
/// written and comes back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char*>(bytes), int(size));
    QImage image;
    const bool read = Zorv::loadPCX(image, &buffer);
    require(!read || !image.isNull());
    if (image.isNull() || image.sizeInBytes() > 1 << 16) {
        return 0;
    }
    QBuffer plainBuffer;
    plainBuffer.setData(buffer.data());
    plainBuffer.open(QIODevice::ReadOnly);
    QImage plain;
    require(Plain::loadPcx(plain, &plainBuffer) == read);
    require(plain.size() == image.size() && plain.format() == image.format() &&
            plain.colorTable() == image.colorTable() &&
            !memcmp(plain.constBits(), image.constBits(), size_t(image.sizeInBytes())));

    QBuffer written;
    const bool fits = image.width() < 1 << 16 && image.height() < 1 << 16;
    require(Zorv::savePCX(image, &written) == fits);
    if (!fits) {
        return 0;
    }
    written.close();
    QImage back;
    require(Zorv::loadPCX(back, &written));
    if (image.format() != QImage::Format_Indexed8) {
        require(back == image);
        return 0;
    }
    require(back.size() == image.size() && back.format() == image.format() &&
            !memcmp(back.constBits(), image.constBits(), size_t(image.sizeInBytes())));
    return 0;
}
