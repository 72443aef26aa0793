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
            const auto most = qMin(qint64(8), qMin(qint64(end - out), qint64(inEnd - in)));
            const auto singles = marks ? qMin(qint64(ByteScan::firstMarked(marks)), most) : most;
            std::memcpy(out, in, 8);
            in += singles;
            out += singles;
            if (singles == most && singles > 0) {
                continue;
            }
            if (singles > 0 && inEnd - in < 2) {
                break;
            }
            m_value = in[1];
            std::memset(out, m_value, LongestRun + 1);
            out += in[0] & LongestRun;
            in += 2;
        } while (out < end && inEnd - in >= 2);
        m_source.take(in);
    }
    m_carried += int(qMax(qint64(0), qint64(out - end)));
    return qMin(out, end) - values;
}

template <RunMarker marker>
void writeRunPairs(const uchar* values, qint64 count, ByteSink& sink)
{
    for (const uchar* in = values, * const end = values + count; in < end;) {
        uchar* out = sink.room(8);
        const quint64 bytes = ByteScan::load(in);
        const quint64 stops =
            markedBytes<marker>(bytes) | ByteScan::zeroBytes(bytes ^ ByteScan::load(in + 1));
        const auto singles =
            qMin(qint64(stops ? ByteScan::firstMarked(stops) : 8), qint64(end - in));
        std::memcpy(out, in, 8);
        in += singles;
        out += singles;
        if (singles == 0) {
            const int length =
                ByteScan::runLength(in, int(qMin(qint64(LongestRun), qint64(end - in))));
            const bool pair = length > 1 || (*in & 0xC0) == uchar(marker);
            *out = uchar(marker) | uchar(length);
            out += pair;
            *out++ = *in;
            in += length;
        }
        sink.take(out);
    }
}

template class RunPairReader<RunMarker::Rle8>;
template class RunPairReader<RunMarker::Pcx>;
template void writeRunPairs<RunMarker::Rle8>(const uchar*, qint64, ByteSink&);
template void writeRunPairs<RunMarker::Pcx>(const uchar*, qint64, ByteSink&);

}  // namespace Zorv
