#pragma once

#include <QtAlgorithms>
#include <QtEndian>

#include <cstring>

/// Eight bytes at a time. Each of these may read eight bytes from its last place on.
namespace Zorv::ByteScan {

constexpr quint64 eachByte(quint8 value)
{
    return 0x0101010101010101u * value;
}

/// The eight bytes at a place, the first one lowest.
inline quint64 load(const uchar* at)
{
    return qFromLittleEndian<quint64>(at);
}

/// How many bytes stand in front of the first one that has its upper bit set in `marks`.
inline int firstMarked(quint64 marks)
{
    return int(qCountTrailingZeroBits(marks)) / 8;
}

/// How many bytes at `a` and `b` are equal, at most `limit`.
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

/// How many bytes equal the one at `at`, itself included, at most `limit`.
inline int runLength(const uchar* at, int limit)
{
    return 1 + equalLength(at, at + 1, limit - 1);
}

/// Upper bits where a byte is zero; those above the first one need not be right.
inline quint64 zeroBytes(quint64 bytes)
{
    return (bytes - eachByte(0x01)) & ~bytes & eachByte(0x80);
}

}  // namespace Zorv::ByteScan
