#include "media/imagefile.h"
#include "media/losslessimages.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

static void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

/// The first byte chooses the format and how it is read, the others are the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const char* const formats[] = {"PNG", "BMP", "GIF", "PCX"};
    if (size == 0) {
        return 0;
    }
    const char* const format = formats[bytes[0] % 4];
    Zorv::setLosslessImages((bytes[0] & 4) != 0);
    QByteArray file(reinterpret_cast<const char*>(bytes + 1), int(size - 1));
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    Zorv::imageInfoFromFile(&buffer, format);
    buffer.seek(0);
    QImage image;
    const bool read = Zorv::loadImage(&buffer, format, image);
    require(!read || !image.isNull());
    if (read && Zorv::losslessImages()) {
        const QImage::Format form = image.format();
        require(form == QImage::Format_Indexed8 || form == QImage::Format_RGB32 ||
                form == QImage::Format_ARGB32);
    }
    return 0;
}
