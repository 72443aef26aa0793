// Run-length encoding and decoding, 64 bytes at a time.
//
// The encoder turns a block into a bit mask in which a bit marks the last byte of each run, and
// then takes run after run from the bits. Blocks with many short runs use another loop, which
// copies all single values between two pairs at once. A run that continues into the next block
// stays open until its end is found.
//
// The decoder turns a block into a mask of the bytes that look like counts and copies the values
// between them in pieces. A value may look like a count, so the bit after each count is cleared.
// Near the ends of input and output, where a block could overrun, it works in steps of eight bytes
// or less.
//
// Copies write up to a fixed number of bytes too many: a fixed length is faster than an exact one.
// The buffers have room for that.

#include "media/runpairs_p.h"

#include "media/bytescan_p.h"
#include "media/bytesink_p.h"

#include <cstring>

namespace Zorv {

namespace {

constexpr int LongestRun = 63;

/// The top bits of the bytes that carry the marker.
template <RunMarker marker>
constexpr quint64 markedBytes(quint64 bytes)
{
    const quint64 highest = marker == RunMarker::Pcx ? bytes : ~bytes;
    return highest & (bytes << 1) & ByteScan::eachByte(0x80);
}

constexpr int BlockSize = 64;
/// A pair for each value, plus a run that began before the block, plus excess bytes of copies.
constexpr int BlockRoom = 2 * BlockSize + 32;
static_assert(BlockRoom <= ByteSink::Room);

/// Copies sixteen bytes at once, since there are rarely more. Reads and writes up to fifteen bytes
/// too many.
void copySingles(uchar* out, const uchar* in, qint64 count)
{
    std::memcpy(out, in, 16);
    for (int i = 16; i < count; i += 16) {
        std::memcpy(out + i, in + i, 16);
    }
}

/// The same for a run.
void writeValues(uchar* out, uchar value, int count)
{
    std::memset(out, value, 16);
    if (count > 16) {
        std::memset(out + 16, value, LongestRun + 1 - 16);
    }
}

/// The state of encoding a stretch, up to the run that starts at `in`.
template <RunMarker marker>
struct Encoder
{
    const uchar* in;
    uchar* out;

    void pairTo(const uchar* end)
    {
        *out++ = uchar(marker) | uchar(end - in);
        *out++ = *in;
        in = end;
    }

    void singlesTo(const uchar* end)
    {
        const auto count = end - in;
        copySingles(out, in, count);
        out += count;
        in = end;
    }

    void runTo(const uchar* end)
    {
        if (end - in > 1 || (*in & 0xC0) == uchar(marker)) {
            pairTo(end);
        } else {
            *out++ = *in++;
        }
    }

    /// Writes pairs of the greatest length while the run reaches `end`.
    void longestTo(const uchar* end)
    {
        while (end - in > LongestRun) {
            pairTo(in + LongestRun);
        }
    }

    /// Writes the runs that end at the set bits.
    void runs(const uchar* block, quint64 ends)
    {
        for (; ends; ends &= ends - 1) {
            runTo(block + qCountTrailingZeroBits(ends) + 1);
        }
    }

    /// The same for single values and pairs in random order, where branches would be mispredicted.
    void mixed(const uchar* block, quint64 ends)
    {
        const quint64 starts = ends << 1 | quint64(in == block);
        if (in != block) {
            runTo(block + qCountTrailingZeroBits(ends) + 1);
        }
        const int behind = BlockSize - int(qCountLeadingZeroBits(ends));
        const quint64 ended = ~quint64(0) >> (BlockSize - behind);
        quint64 pairs = starts & ended & (~ends | ByteScan::placesOf(block, 0xC0, uchar(marker)));
        for (; pairs; pairs &= pairs - 1) {
            const int start = int(qCountTrailingZeroBits(pairs));
            singlesTo(block + start);
            pairTo(in + qCountTrailingZeroBits(ends >> start) + 1);
        }
        singlesTo(block + behind);
    }
};

/// The most values a block can decode to, plus excess bytes of copies.
constexpr int DecodedBlock = BlockSize / 2 * LongestRun + 64;

void decodePair(const uchar* pair, uchar*& out)
{
    const int count = pair[0] & LongestRun;
    writeValues(out, pair[1], count);
    out += count;
}

/// Decodes the pairs that start in a block, and the single values between them.
template <RunMarker marker>
void decodeBlock(const uchar*& in, uchar*& out)
{
    constexpr quint64 everySecond = ByteScan::eachByte(0x55);
    const uchar* const block = in;
    quint64 marks = ByteScan::placesOf(block, 0xC0, uchar(marker));
    if ((marks & everySecond) == everySecond) {
        for (; in < block + BlockSize; in += 2) {
            decodePair(in, out);
        }
        return;
    }
    while (marks) {
        const int start = int(qCountTrailingZeroBits(marks));
        const uchar* const pair = block + start;
        copySingles(out, in, pair - in);
        out += pair - in;
        decodePair(pair, out);
        in = pair + 2;
        // The value may look like a marker.
        marks &= ~(quint64(3) << start);
    }
    if (in < block + BlockSize) {
        copySingles(out, in, block + BlockSize - in);
        out += block + BlockSize - in;
        in = block + BlockSize;
    }
}

}  // namespace

template <RunMarker marker>
qint64 RunPairReader<marker>::read(uchar* values, qint64 count)
{
    uchar* out = values;
    uchar* const end = values + count;
    const int carried = int(qMin(qint64(m_carried), count));
    std::memset(out, m_value, size_t(carried));
    out += carried;
    m_carried -= carried;

    while (out < end && m_source.more(2)) {
        const uchar* in = m_source.at();
        const uchar* const inEnd = m_source.end();
        while (inEnd - in > BlockSize && end - out >= DecodedBlock) {
            decodeBlock<marker>(in, out);
        }
        do {
            const quint64 marks = markedBytes<marker>(ByteScan::load(in));
            if (marks & 0x80) {
                m_value = in[1];
                writeValues(out, m_value, in[0] & LongestRun);
                out += in[0] & LongestRun;
                in += 2;
                continue;
            }
            std::memcpy(out, in, 8);
            qint64 singles = 8;
            if (marks || end - out < 8 || inEnd - in < 8) {
                singles = marks ? ByteScan::firstMarked(marks) : 8;
                singles = qMin(singles, qMin(qint64(end - out), qint64(inEnd - in)));
            }
            in += singles;
            out += singles;
        } while (out < end && inEnd - in >= 2);
        m_source.take(in);
    }
    m_carried += int(qMax(qint64(0), qint64(out - end)));
    return qMin(out, end) - values;
}

template <RunMarker marker>
void writeRunPairs(const uchar* values, qint64 count, ByteSink& sink)
{
    Encoder<marker> encoder = {values, nullptr};
    for (qint64 at = 0; at < count; at += BlockSize) {
        const uchar* block = values + at;
        quint64 ends = ByteScan::runEnds(block);
        if (count - at <= BlockSize) {
            const quint64 last = quint64(1) << (count - at - 1);
            ends = (ends | last) & (last | (last - 1));
        }
        encoder.out = sink.room(BlockRoom);
        // Only the first run of a block can exceed the length of a pair.
        encoder.longestTo(block + (ends ? qCountTrailingZeroBits(ends) + 1 : BlockSize));
        if (qPopulationCount(ends) > BlockSize / 4) {
            encoder.mixed(block, ends);
        } else {
            encoder.runs(block, ends);
        }
        sink.take(encoder.out);
    }
}

template class RunPairReader<RunMarker::Rle8>;
template class RunPairReader<RunMarker::Pcx>;
template void writeRunPairs<RunMarker::Rle8>(const uchar*, qint64, ByteSink&);
template void writeRunPairs<RunMarker::Pcx>(const uchar*, qint64, ByteSink&);

}  // namespace Zorv
