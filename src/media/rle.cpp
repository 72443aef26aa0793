#include "media/rle.h"

#include "media/bytesink_p.h"
#include "media/devices_p.h"
#include "media/formatdepth_p.h"
#include "media/pixelarray_p.h"
#include "media/runpairs_p.h"

#include <QImage>

#include <cstring>

namespace Zorv {

namespace {

/// A run of up to 256 pixels, then up to 31 repeats of up to 8.
constexpr int LongestRle5Packet = 256 + 31 * 8;
constexpr int Rle5PacketBytes = 3 + 31;
static_assert(Rle5PacketBytes <= ByteSource::Padding && LongestRle5Packet <= PixelArray::Behind,
              "a packet is read and written without a look at the ends");

// The number of bytes skipped after a line is limited to one byte.
LineLayout layoutOf(const QImage& image, qint64 line)
{
    return {line, (image.bytesPerLine() - line) & 0xFF};
}

uchar* readRle5Packet(const uchar*& in, uchar* out)
{
    const int run = *in++ + 1;
    const uchar head = *in++;
    const uchar pixel = head & 0x80 ? *in++ & 31 : 0;
    std::memset(out, pixel, size_t(run));
    out += run;
    for (int repeats = head & 31; repeats > 0; --repeats) {
        std::memset(out, *in & 31, 8);
        out += (*in++ >> 5) + 1;
    }
    return out;
}

}  // namespace

bool loadRLE5(QImage& image, QIODevice* device)
{
    if (!openToRead(device)) {
        return false;
    }
    // Line lengths have 16 bits: a longer line never ends.
    const LineLayout layout = layoutOf(image, image.width() > 0xFFFF ? 0 : image.width());
    PixelArray pixels(layout.capacity(image.sizeInBytes()));
    if (pixels.isNull()) {
        return false;
    }
    ByteSource source(device);
    uchar* out = pixels.begin();
    while (out < pixels.end() && source.more(Rle5PacketBytes)) {
        const uchar* in = source.at();
        out = readRle5Packet(in, out);
        source.take(in);
    }
    layout.place(image, pixels.begin(), qMin(out, pixels.end()) - pixels.begin());
    return !source.endedInside();
}

bool saveRLE5(const QImage&, QIODevice*)
{
    return false;
}

bool loadRLE8(QImage& image, QIODevice* device)
{
    if (!openToRead(device)) {
        return false;
    }
    const qint64 line = qint64(image.width()) * formatDepth(image.format()) / 8;
    const LineLayout layout = layoutOf(image, line);
    PixelArray values(layout.capacity(image.sizeInBytes()));
    if (values.isNull()) {
        return false;
    }
    ByteSource source(device);
    RunPairReader<RunMarker::Rle8> reader(source);
    layout.place(image, values.begin(), reader.read(values.begin(), values.size()));
    return !source.endedInside();
}

bool saveRLE8(const QImage& image, QIODevice* device)
{
    if (!openToWrite(device)) {
        return false;
    }
    PixelArray values(image, int(qint64(image.width()) * image.depth() / 8));
    if (values.isNull()) {
        return false;
    }
    ByteSink sink(device);
    writeRunPairs<RunMarker::Rle8>(values.begin(), values.size(), sink);
    return sink.finish();
}

}  // namespace Zorv
