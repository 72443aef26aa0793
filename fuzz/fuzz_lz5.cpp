#include "media/lz5.h"

#include "support/plaincodecs.h"
#include "support/spritepixels.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>
#include <cstring>

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

/// Width and height, a byte each, then a stream: read as a plain loop reads it. Its
/// pixels are written and come back, as the plain search writes them if they are few.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    if (size < 2) {
        return 0;
    }
    const int width = bytes[0] % 64 + 1, height = bytes[1] % 32 + 1;
    const QByteArray stream(reinterpret_cast<const char*>(bytes) + 2, int(size) - 2);

    QByteArray plain(Plain::Lz5Front + width * height, 0);
    Plain::Bytes in(stream);
    Plain::readLz5(in, reinterpret_cast<uchar*>(plain.data()) + Plain::Lz5Front, width * height);
    plain.remove(0, Plain::Lz5Front);

    QImage image(width, height, QImage::Format_Indexed8);
    QBuffer buffer;
    buffer.setData(stream);
    require(Zorv::loadLZ5(image, &buffer) == !in.ranOut);
    require(SpritePixels::pixels(image) == plain);

    QBuffer written;
    require(Zorv::saveLZ5(image, &written, bytes[0] < 128));
    // The plain search takes its time.
    require(plain.size() > 200 || written.data() == Plain::writeLz5(plain, bytes[0] < 128));
    written.close();
    QImage back(width, height, QImage::Format_Indexed8);
    require(Zorv::loadLZ5(back, &written) && SpritePixels::pixels(back) == plain);
    return 0;
}
