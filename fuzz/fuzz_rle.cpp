#include "media/rle.h"

#include "support/plaincodecs.h"
#include "support/spritepixels.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

/// Width and height, a byte each, then a stream of RLE8 or, above 127, of RLE5: read as a plain
/// loop reads it. The pixels are written as a plain loop writes them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    if (size < 2) {
        return 0;
    }
    const bool isRle8 = bytes[0] < 128;
    const int width = bytes[0] % 128 + 1, height = bytes[1] % 64 + 1;
    const QByteArray stream(reinterpret_cast<const char*>(bytes) + 2, int(size) - 2);

    QByteArray plain(width * height, 0);
    Plain::Bytes in(stream);
    (isRle8 ? Plain::readRle8 : Plain::readRle5)(in, reinterpret_cast<uchar*>(plain.data()),
                                                 width * height);

    QImage image(width, height, QImage::Format_Indexed8);
    image.fill(0);
    QBuffer buffer;
    buffer.setData(stream);
    require((isRle8 ? Zorv::loadRLE8 : Zorv::loadRLE5)(image, &buffer) == !in.ranOut);
    require(SpritePixels::pixels(image) == plain);

    QBuffer written;
    require(Zorv::saveRLE8(image, &written) && written.data() == Plain::writeRle8(plain));

    QImage wide(width, height, QImage::Format_RGB32);
    buffer.seek(0);
    Zorv::loadRLE8(wide, &buffer);
    return 0;
}
