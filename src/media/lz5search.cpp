// Finds the longest earlier copy of the pixels at a position.
//
// First `Shape` measures the runs at the position. They decide how long a match must be to be worth
// a packet, so this is known before the search. Then distances are tested 64 at a time, nearest
// first. A filter compares only three or five offsets in all 64 lanes, among them the first colour
// change and the last pixel needed to beat the best match so far. Only lanes that pass are compared
// in full. Each longer match raises the length needed, so the filter gets stricter. Distances up to
// 256 come first, because only they can use short packets.

#include "media/lz5search_p.h"

#include "media/bytescan_p.h"

namespace Zorv {

namespace {

constexpr int LongestMatch = 258;
constexpr int LongestShort = 64;
constexpr int FarthestShort = 256;
constexpr int Farthest = 1024;
constexpr int Lanes = 64;

constexpr QPack NoMatch = {1, 0, 0, 0};

/// A bit for each of sixteen consecutive places where the pixels at all offsets equal those at
/// `here`.
template <int count>
inline quint64 placesLike(const uchar* here, const uchar* at, const int (&offsets)[count])
{
#ifdef __SSE2__
    __m128i alike = _mm_set1_epi8(-1);
    for (const int offset : offsets) {
        const __m128i pixels = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + offset));
        alike = _mm_and_si128(alike, _mm_cmpeq_epi8(pixels, _mm_set1_epi8(char(here[offset]))));
    }
    return unsigned(_mm_movemask_epi8(alike));
#else
    quint64 differences[2] = {};
    for (const int offset : offsets) {
        const quint64 pixels = ByteScan::eachByte(here[offset]);
        differences[0] |= ByteScan::load(at + offset) ^ pixels;
        differences[1] |= ByteScan::load(at + offset + 8) ^ pixels;
    }
    return ByteScan::zeroBytes(differences[0]) | ByteScan::zeroBytes(differences[1]) << 8;
#endif
}

/// The same for all lanes.
template <int count>
inline quint64 lanesLike(const uchar* here, const uchar* at, const int (&offsets)[count])
{
    quint64 lanes = 0;
    for (int first = 0; first < Lanes; first += 16) {
        lanes |= placesLike(here, at + first, offsets) << first;
    }
    return lanes;
}

/// Whether the eight pixels ending at `offset` are equal, or fewer if there are not as many.
inline bool endsAlike(const uchar* a, const uchar* b, int offset)
{
    const int first = qMax(0, offset - 7);
    const quint64 difference = ByteScan::load(a + first) ^ ByteScan::load(b + first);
    return difference << (8 * (7 - (offset - first))) == 0;
}

}  // namespace

/// The lengths that make a match worth a packet. They depend only on the pixels at the position
/// itself, because a match has the same pixels.
struct Lz5Search::Shape
{
    const uchar* here;
    int limit;        ///< the greatest possible length
    int firstChange;  ///< start of the second run
    int leastShort;   ///< must cover the second run, or a run packet is better
    int leastLong;    ///< must pass a third change, or two with a long run

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
    int needed = qMax(best.length, least - 1);
    for (int distance = nearest; distance <= farthest && best.length < shape.limit;
         distance += Lanes) {
        // Lanes are in memory order, so the nearest place is the last lane.
        const uchar* const places = here - distance - (Lanes - 1);
        quint64 found =
            needed > change + 1
                ? lanesLike<5>(here, places,
                               {change - 1, change, (change + needed) / 2, needed - 1, needed})
                : lanesLike<3>(here, places, {change - 1, change, needed});
        found &= ~quint64(0) << qMax(0, distance + Lanes - 1 - farthest);
        while (found && best.length < shape.limit) {
            const int lane = Lanes - 1 - int(qCountLeadingZeroBits(found));
            found ^= quint64(1) << lane;
            if (!endsAlike(places + lane, here, needed)) {
                continue;
            }
            const int length = ByteScan::equalLength(places + lane, here, shape.limit);
            const int back = distance + Lanes - 1 - lane;
            if (length > best.length && shape.isWorth(back, length)) {
                best = {length, back};
                needed = qMax(needed, length);
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
