#include "media/lz5search_p.h"

#include "media/bytescan_p.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Zorv {

namespace {

constexpr int LongestMatch = 258;
constexpr int LongestShort = 64;
constexpr int FarthestShort = 256;
constexpr int Farthest = 1024;
constexpr int Lanes = 16;

constexpr QPack NoMatch = {1, 0, 0, 0};

/// A bit for each of sixteen places in a row that hold a pixel.
inline unsigned lanesOf(uchar pixel, const uchar* at)
{
#ifdef __SSE2__
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    return unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(char(pixel)))));
#else
    unsigned lanes = 0;
    for (int i = 0; i < Lanes; ++i) {
        lanes |= unsigned(at[i] == pixel) << i;
    }
    return lanes;
#endif
}

}  // namespace

/// What makes a match at a place worth a packet. The pixels that match are those of the
/// place itself, so that all of this hangs on the length.
struct Lz5Search::Shape
{
    const uchar* here;
    int limit;        ///< pixels that a match can have
    int firstChange;  ///< where the second run starts
    int leastShort;   ///< the second run has to end: below that a run packet does better
    int leastLong;    ///< a third change, or two around a run of eight or nine

    /// False if no length is worth it.
    bool measure();
    bool isWorth(int distance, int length) const
    {
        const bool isShort = distance <= FarthestShort && length <= LongestShort;
        return length >= (isShort ? leastShort : leastLong);
    }
};

bool Lz5Search::Shape::measure()
{
    firstChange = limit > 0 ? ByteScan::runLength(here, limit) : limit;
    if (firstChange >= limit) {
        return false;
    }
    const int secondRun = ByteScan::runLength(here + firstChange, limit - firstChange + 1);
    const int secondChange = firstChange + secondRun;
    if (secondChange > limit) {
        return false;
    }
    const int thirdChange =
        secondChange + ByteScan::runLength(here + secondChange, limit - secondChange + 1);
    // The first run counts its first pixel, the others do not.
    const bool hasLongRun = firstChange > 7 || secondRun > 8;
    leastShort = secondChange;
    leastLong = hasLongRun ? secondChange + 1 : qMin(thirdChange, secondChange + 8) + 1;
    return true;
}

QPack Lz5Search::find(int position)
{
    Shape shape = {m_pixels + position, qMin(LongestMatch, m_total - position), 0, 0, 0};
    if (position < 2 || position == m_lastMiss || !shape.measure()) {
        return NoMatch;
    }
    Match best;
    search(shape, 2, qMin(position, FarthestShort), shape.leastShort, best);
    if (shape.leastLong <= shape.limit) {
        search(shape, FarthestShort + 1, qMin(position, Farthest), shape.leastLong, best);
    }
    if (best.distance == 0) {
        m_lastMiss = position;
        return NoMatch;
    }
    const bool isShort = best.distance <= FarthestShort && best.length <= LongestShort;
    return {1, isShort, quint16(best.distance), qint16(best.length)};
}

void Lz5Search::search(const Shape& shape, int nearest, int farthest, int least, Match& best) const
{
    const uchar* const here = shape.here;
    const int change = shape.firstChange;
    for (int distance = nearest; distance <= farthest && best.length < shape.limit;
         distance += Lanes) {
        // The nearest place is the last one of the lanes.
        const uchar* const places = here - distance - (Lanes - 1);
        const int needed = qMax(best.length, least - 1);
        unsigned found = lanesOf(here[change - 1], places + change - 1) &
                         lanesOf(here[change], places + change) &
                         lanesOf(here[needed], places + needed);
        const int tooFar = distance + Lanes - 1 - farthest;
        found &= tooFar > 0 ? ~0u << tooFar : ~0u;
        while (found) {
            const int lane = 31 - int(qCountLeadingZeroBits(found));
            found ^= 1u << lane;
            const int length = ByteScan::equalLength(places + lane, here, shape.limit);
            const int back = distance + Lanes - 1 - lane;
            if (length > best.length && shape.isWorth(back, length)) {
                best = {length, back};
            }
        }
    }
}

QPack lzFind(const unsigned char* data, int position, unsigned int total)
{
    if (position < 2 || unsigned(position) >= total) {
        return NoMatch;
    }
    const int before = qMin(position, Farthest);
    const int ahead = int(qMin(total - unsigned(position), unsigned(LongestMatch + 1)));
    uchar pixels[Lz5Search::Front + Farthest + LongestMatch + 1 + Lz5Search::Behind] = {};
    std::memcpy(pixels + Lz5Search::Front, data - before, size_t(before + ahead));
    return Lz5Search(pixels + Lz5Search::Front, before + ahead).find(before);
}

}  // namespace Zorv
