#pragma once

#include "media/soundsample.h"

#include <QtEndian>

#include <algorithm>
#include <climits>
#include <type_traits>

namespace Zorv {

/// Calls a function with the bytes per sample as an `std::integral_constant`. For an unsupported
/// number of bits returns false without a call.
template <class Function>
bool withSampleBytes(int bits, Function function)
{
    switch (bits) {
    case 8:
        function(std::integral_constant<int, 1>());
        return true;
    case 16:
        function(std::integral_constant<int, 2>());
        return true;
    case 24:
        function(std::integral_constant<int, 3>());
        return true;
    case 32:
        function(std::integral_constant<int, 4>());
        return true;
    default:
        return false;
    }
}

/// A sample as a signed number of 8 * `Bytes` bits, whatever its encoding in a file.
template <int Bytes>
qint32 pcmValue(const char* data)
{
    if constexpr (Bytes == 1) {
        return qint32(uchar(*data)) - 128;
    } else if constexpr (Bytes == 2) {
        return qFromLittleEndian<qint16>(data);
    } else if constexpr (Bytes == 3) {
        return qint32(quint32(uchar(data[0])) << 8 | quint32(uchar(data[1])) << 16 |
                      quint32(uchar(data[2])) << 24) >>
               8;
    } else {
        return qFromLittleEndian<qint32>(data);
    }
}

template <int Bytes>
void setPcmValue(char* data, qint32 value)
{
    if constexpr (Bytes == 1) {
        *data = char(value + 128);
    } else if constexpr (Bytes == 2) {
        qToLittleEndian<qint16>(qint16(value), data);
    } else if constexpr (Bytes == 3) {
        for (int i = 0; i < 3; ++i) {
            data[i] = char(quint32(value) >> (8 * i));
        }
    } else {
        qToLittleEndian<qint32>(value, data);
    }
}

/// The greatest value of a sample.
template <int Bytes>
constexpr qint32 mostPcmValue()
{
    return qint32(0x7fffffff >> (32 - 8 * Bytes));
}

/// The bytes per frame, rounded down; 0 if the format has none.
inline int frameBytesOf(const SampleInfo& info)
{
    return int(quint32(info.bits) * info.channels / 8);
}

/// The number of complete frames in the data, at most the declared number.
inline int wholeFramesOf(const SampleInfo& info, const QByteArray& data)
{
    const int bytes = frameBytesOf(info);
    return bytes > 0 ? std::clamp(data.size() / bytes, 0, std::max(info.frames, 0)) : 0;
}

}  // namespace Zorv
