// Encodes an image as LZ5.
//
// At every position a match is searched. If there is one, it becomes a copy packet; otherwise the
// pixels become a run. A run of at least seven pixels is cut to seven if a match starts right after
// those. This choice is part of the format: equal images must give equal bytes.
//
// Packets come in groups of eight behind a control byte whose bits mark copies. Four short copies
// share the upper bits of their length bytes, which hold the distance of the fourth. Control bytes
// and these bits are filled in after their place has been passed, so the whole stream is built in
// memory.

#include "media/lz5.h"

#include "media/bytescan_p.h"
#include "media/devices_p.h"
#include "media/lz5search_p.h"
#include "media/pixelarray_p.h"

#include <QIODevice>
#include <QImage>

#include <limits>
#include <memory>
#include <new>

namespace Zorv {

namespace {

constexpr int GroupPackets = 8;
constexpr int ShortRun = 7;
constexpr int LongestRun = 263;

static_assert(Lz5Search::Front <= PixelArray::Front && Lz5Search::Behind <= PixelArray::Behind,
              "the search reads past the ends");

/// Builds the stream. Control bytes and the upper bits of short copies are known only later, and
/// are patched in place.
class PacketWriter
{
public:
    /// At most one byte per pixel, plus one bit of a control byte.
    explicit PacketWriter(qint64 pixels)
        : m_bytes(new (std::nothrow) uchar[size_t(pixels + pixels / GroupPackets + 1)]),
          m_at(m_bytes.get())
    {
    }
    bool isNull() const { return !m_bytes; }

    void run(uchar pixel, int length)
    {
        startPacket(false);
        pixel &= 31;
        if (length <= ShortRun) {
            *m_at++ = uchar(length << 5) | pixel;
        } else {
            *m_at++ = pixel;
            *m_at++ = uchar(length - ShortRun - 1);
        }
    }

    void copy(const QPack& pack)
    {
        startPacket(true);
        const int distance = pack.value - 1;
        if (pack.isShort) {
            shortCopy(distance, pack.length - 1);
        } else {
            *m_at++ = distance >> 2 & 0xC0;
            *m_at++ = uchar(distance);
            *m_at++ = uchar(pack.length - 3);
        }
    }

    bool writeTo(QIODevice* device) const
    {
        const qint64 size = m_at - m_bytes.get();
        return device->write(reinterpret_cast<const char*>(m_bytes.get()), size) == size;
    }

private:
    void startPacket(bool isCopy)
    {
        const int bit = m_packets++ % GroupPackets;
        if (bit == 0) {
            m_control = m_at++;
            *m_control = 0;
        }
        *m_control |= uchar(isCopy << bit);
    }

    // The fourth of a series stores its distance in the upper bits of the four length bytes.
    void shortCopy(int distance, int length)
    {
        m_series[m_inSeries++] = m_at;
        *m_at++ = uchar(length);
        if (m_inSeries < 4) {
            *m_at++ = uchar(distance);
            return;
        }
        for (uchar* byte : m_series) {
            *byte |= distance & 0xC0;
            distance <<= 2;
        }
        m_inSeries = 0;
    }

    std::unique_ptr<uchar[]> m_bytes;
    uchar* m_at;
    uchar* m_control = nullptr;
    uchar* m_series[4] = {};
    int m_packets = 0;
    int m_inSeries = 0;
};

void writeRuns(const uchar* pixels, int total, PacketWriter& packets)
{
    for (int i = 0; i < total;) {
        const int length = ByteScan::runLength(pixels + i, qMin(total - i, LongestRun));
        packets.run(pixels[i], length);
        i += length;
    }
}

void writePackets(const uchar* pixels, int total, PacketWriter& packets)
{
    Lz5Search search(pixels, total);
    for (int i = 0; i < total;) {
        const QPack match = search.find(i);
        if (match.length > 0) {
            packets.copy(match);
            i += match.length;
            continue;
        }
        int length = ByteScan::runLength(pixels + i, qMin(total - i, LongestRun));
        // A match seven pixels ahead is preferred to a longer run.
        const QPack next = length >= ShortRun ? search.find(i + ShortRun) : QPack{1, 0, 0, 0};
        if (next.length > 0) {
            length = ShortRun;
        }
        packets.run(pixels[i], length);
        i += length;
        if (next.length > 0) {
            packets.copy(next);
            i += next.length;
        }
    }
}

}  // namespace

bool saveLZ5(const QImage& image, QIODevice* device, bool useLz)
{
    if (!openToWrite(device)) {
        return false;
    }
    if (qint64(image.width()) * image.height() > std::numeric_limits<int>::max()) {
        return false;
    }
    PixelArray pixels(image, image.width());
    PacketWriter packets(pixels.size());
    if (pixels.isNull() || packets.isNull()) {
        return false;
    }
    if (useLz) {
        writePackets(pixels.begin(), int(pixels.size()), packets);
    } else {
        writeRuns(pixels.begin(), int(pixels.size()), packets);
    }
    return packets.writeTo(device);
}

}  // namespace Zorv
