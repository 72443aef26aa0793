#pragma once

#include <QtAlgorithms>
#include <QtEndian>

#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Operations on many bytes at once. Unless stated otherwise, eight bytes must be readable from
/// each address.
namespace Zorv::ByteScan {

constexpr quint64 eachByte(quint8 value)
{
    return 0x0101010101010101u * value;
}

/// The eight bytes at an address, the first one lowest.
inline quint64 load(const uchar* at)
{
    return qFromLittleEndian<quint64>(at);
}

/// The number of bytes before the first one with its top bit set in `marks`.
inline int firstMarked(quint64 marks)
{
    return int(qCountTrailingZeroBits(marks)) / 8;
}

/// The number of equal bytes at `a` and `b`, at most `limit`.
inline int equalLength(const uchar* a, const uchar* b, int limit)
{
    for (int length = 0; length < limit; length += 8) {
        const quint64 difference = load(a + length) ^ load(b + length);
        if (difference) {
            return qMin(limit, length + int(qCountTrailingZeroBits(difference)) / 8);
        }
    }
    return limit;
}

/// The number of bytes equal to the one at `at`, itself included, at most `limit`.
inline int runLength(const uchar* at, int limit)
{
    return 1 + equalLength(at, at + 1, limit - 1);
}

/// A bit for each byte that is zero.
inline unsigned zeroBytes(quint64 bytes)
{
    const quint64 sevenBits = eachByte(0x7F);
    const quint64 zeros = ~(((bytes & sevenBits) + sevenBits) | bytes | sevenBits) >> 7;
    // Gathers bit 0 of each byte in the top byte.
    return unsigned(zeros * 0x0102040810204080u >> 56);
}

/// A bit for each of 64 bytes that differs from the next one. Reads 72 bytes.
inline quint64 runEnds(const uchar* at)
{
    quint64 same = 0;
#ifdef __SSE2__
    for (int i = 0; i < 64; i += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + i));
        const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + i + 1));
        same |= quint64(unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, next)))) << i;
    }
#else
    for (int i = 0; i < 64; i += 8) {
        same |= quint64(zeroBytes(load(at + i) ^ load(at + i + 1))) << i;
    }
#endif
    return ~same;
}

/// A bit for each of 64 bytes that has the bits of `value` within `mask`.
inline quint64 placesOf(const uchar* at, quint8 mask, quint8 value)
{
    quint64 places = 0;
#ifdef __SSE2__
    for (int i = 0; i < 64; i += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + i));
        const __m128i masked = _mm_and_si128(bytes, _mm_set1_epi8(char(mask)));
        const __m128i equal = _mm_cmpeq_epi8(masked, _mm_set1_epi8(char(value)));
        places |= quint64(unsigned(_mm_movemask_epi8(equal))) << i;
    }
#else
    for (int i = 0; i < 64; i += 8) {
        places |= quint64(zeroBytes((load(at + i) & eachByte(mask)) ^ eachByte(value))) << i;
    }
#endif
    return places;
}

}  // namespace Zorv::ByteScan
