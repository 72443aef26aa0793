#include "media/runpairs_p.h"

#include "media/bytescan_p.h"
#include "media/bytesink_p.h"

#include <cstring>

namespace Zorv {

namespace {

constexpr int LongestRun = 63;

/// Upper bits of the bytes that carry the marker.
template <RunMarker marker>
constexpr quint64 markedBytes(quint64 bytes)
{
    const quint64 highest = marker == RunMarker::Pcx ? bytes : ~bytes;
    return highest & (bytes << 1) & ByteScan::eachByte(0x80);
}

constexpr int BlockSize = 64;
/// A pair for each two values, and a run that began in front of the block.
constexpr int BlockRoom = 2 * BlockSize + 8;
static_assert(BlockRoom <= ByteSink::Room);

/// What has been encoded of a stretch, up to the run that starts at `in`.
template <RunMarker marker>
struct Encoder
{
    const uchar* in;
    uchar* out;

    void pair(int length)
    {
        *out++ = uchar(marker) | uchar(length);
        *out++ = *in;
        in += length;
    }

    /// The run ends at `end`.
    void runTo(const uchar* end)
    {
        while (end - in > LongestRun) {
            pair(LongestRun);
        }
        // Without a branch: single values and pairs follow each other in no order.
        const auto length = end - in;
        const bool isPair = length > 1 || (*in & 0xC0) == uchar(marker);
        out[0] = uchar(marker) | uchar(length);
        out[isPair] = *in;
        out += 1 + isPair;
        in = end;
    }

    /// Runs that end at the places that have a bit.
    void runs(const uchar* block, quint64 ends)
    {
        for (; ends; ends &= ends - 1) {
            runTo(block + qCountTrailingZeroBits(ends) + 1);
        }
    }

    /// The same where hardly any value stands in a longer run.
    void singles(const uchar* block, quint64 ends)
    {
        for (int first = 0; first < BlockSize; first += 8, ends >>= 8) {
            if ((ends & 0xFF) == 0xFF && in == block + first &&
                !markedBytes<marker>(ByteScan::load(in))) {
                std::memcpy(out, in, 8);
                in += 8;
                out += 8;
            } else {
                runs(block + first, ends & 0xFF);
            }
        }
    }
};

/// Sixteen bytes at once, most runs are no longer.
uchar* writeValues(uchar* out, uchar value, int count)
{
    std::memset(out, value, 16);
    if (count > 16) {
        std::memset(out + 16, value, LongestRun + 1 - 16);
    }
    return out + count;
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
        do {
            const quint64 marks = markedBytes<marker>(ByteScan::load(in));
            if (marks & 0x80) {
                out = writeValues(out, m_value = in[1], in[0] & LongestRun);
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
        if (qPopulationCount(ends) > BlockSize * 7 / 8) {
            encoder.singles(block, ends);
        } else {
            encoder.runs(block, ends);
        }
        while (block + BlockSize - encoder.in >= LongestRun && encoder.in < values + count) {
            encoder.pair(LongestRun);
        }
        sink.take(encoder.out);
    }
}

template class RunPairReader<RunMarker::Rle8>;
template class RunPairReader<RunMarker::Pcx>;
template void writeRunPairs<RunMarker::Rle8>(const uchar*, qint64, ByteSink&);
template void writeRunPairs<RunMarker::Pcx>(const uchar*, qint64, ByteSink&);

}  // namespace Zorv
