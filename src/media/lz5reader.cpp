// Decodes an LZ5 stream.
//
// The stream consists of groups: a control byte, then eight packets, a set bit for each copy. A run
// packet holds the pixel in five bits and the length in the upper three; if these are 0, the next
// byte has the length minus 8. A copy packet repeats earlier pixels. Its short form has the length
// minus 1 in six bits; if these are 0 it is the long form, with ten bits of distance and a byte
// with the length minus 3.
//
// A packet is decoded without any checks: ByteSource guarantees that its bytes are readable, and
// PixelArray has room for what it reads before the start or writes past the end.

#include "media/lz5.h"

#include "media/bytescan_p.h"
#include "media/bytesource_p.h"
#include "media/devices_p.h"
#include "media/pixelarray_p.h"

#include <QImage>

#include <cstring>

namespace Zorv {

namespace {

constexpr int GroupPackets = 8;
constexpr int GroupBytes = 1 + GroupPackets * 3;
constexpr int LongestPacket = 263;
constexpr int FarthestCopy = 1024;
/// Pixels are written in steps of this size, past the end of a packet.
constexpr int Stride = 16;
static_assert(GroupBytes <= ByteSource::Padding && FarthestCopy <= PixelArray::Front &&
                  LongestPacket + 2 * Stride <= PixelArray::Behind,
              "a group is read and written without a look at the ends");

/// The distances of short copies. Four copies share the upper bits of their length bytes, which
/// together form the fourth distance; it has no byte of its own.
class ShortDistances
{
public:
    int next(uchar head, const uchar*& in)
    {
        m_gathered |= (head & 0xC0) >> (2 * m_count);
        if (++m_count < 4) {
            return *in++ + 1;
        }
        const int distance = m_gathered + 1;
        m_gathered = 0;
        m_count = 0;
        return distance;
    }

private:
    int m_count = 0;
    int m_gathered = 0;
};

void copyStride(uchar* to, const uchar* from)
{
    uchar pixels[Stride];
    std::memcpy(pixels, from, Stride);
    std::memcpy(to, pixels, Stride);
}

uchar* readRun(const uchar*& in, uchar* out)
{
    const uchar head = *in++;
    if (head >> 5) {
        const quint64 pixels = ByteScan::eachByte(head & 31);
        std::memcpy(out, &pixels, 8);
        return out + (head >> 5);
    }
    uchar* const end = out + *in++ + 8;
    do {
        std::memset(out, head & 31, Stride);
        out += Stride;
    } while (out < end);
    return end;
}

/// The source may overlap the output: if the distance is smaller than the length, the pixels
/// repeat.
uchar* copyPixels(uchar* out, int distance, int length)
{
    uchar* const end = out + length;
    const uchar* const from = out - distance;
    // A pattern of period n also has period 2n. So the distance is doubled until whole strides can
    // be copied.
    for (; distance < Stride; distance *= 2) {
        copyStride(out, from);
        out += distance;
    }
    copyStride(out, out - distance);
    for (out += Stride; out < end; out += Stride) {
        copyStride(out, out - distance);
    }
    return end;
}

uchar* readCopy(const uchar*& in, uchar* out, ShortDistances& shortDistances)
{
    const uchar head = *in++;
    if (head & 0x3F) {
        return copyPixels(out, shortDistances.next(head, in), (head & 0x3F) + 1);
    }
    const int distance = (head >> 6 << 8 | in[0]) + 1;
    const int length = in[1] + 3;
    in += 2;
    return copyPixels(out, distance, length);
}

/// Returns the end of the decoded pixels, at most one packet beyond `end`.
uchar* readPackets(ByteSource& source, uchar* out, uchar* const end)
{
    ShortDistances shortDistances;
    while (out < end && source.more(GroupBytes)) {
        const uchar* in = source.at();
        const uchar* const inEnd = source.end();
        int control = *in++;
        for (int i = 0; i < GroupPackets && out < end && in < inEnd; ++i, control >>= 1) {
            out = control & 1 ? readCopy(in, out, shortDistances) : readRun(in, out);
        }
        source.take(in);
    }
    return out;
}

void place(QImage& image, const uchar* pixels)
{
    const int count = qMin(image.width(), image.bytesPerLine());
    uchar* line = image.bits();
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(line, pixels, size_t(count));
        line += image.bytesPerLine();
        pixels += image.width();
    }
}

}  // namespace

bool loadLZ5(QImage& image, QIODevice* device)
{
    if (!openToRead(device)) {
        return false;
    }
    PixelArray pixels(qint64(image.width()) * image.height());
    if (pixels.isNull()) {
        return false;
    }
    ByteSource source(device);
    const uchar* out = readPackets(source, pixels.begin(), pixels.end());
    if (out < pixels.end()) {
        std::memset(pixels.begin() + (out - pixels.begin()), 0, size_t(pixels.end() - out));
    }
    place(image, pixels.begin());
    return !source.endedInside();
}

}  // namespace Zorv
