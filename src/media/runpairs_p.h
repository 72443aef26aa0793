#pragma once

#include "media/bytesource_p.h"

#include <QtGlobal>

namespace Zorv {

class ByteSink;

/// The run-length code shared by RLE8 and PCX. A byte whose upper two bits equal the marker holds a
/// count of 0 to 63, and the next byte is the value. Any other byte is a value.
enum class RunMarker : quint8 { Rle8 = 0x40, Pcx = 0xC0 };

/// Decodes a stretch of values at a time. A run may continue into the next stretch.
template <RunMarker marker>
class RunPairReader
{
public:
    /// The number of bytes that may be written past the end of a stretch.
    static constexpr int Overshoot = 64;

    explicit RunPairReader(ByteSource& source) : m_source(source) {}

    /// Writes up to `count` values and returns their number: fewer at the end of the data.
    qint64 read(uchar* values, qint64 count);

private:
    ByteSource& m_source;
    int m_carried = 0;
    uchar m_value = 0;
};

/// Bytes that must be readable after a stretch being encoded.
constexpr int RunPairReadAhead = 72;

/// Encodes a stretch. No run continues into the next one.
template <RunMarker marker>
void writeRunPairs(const uchar* values, qint64 count, ByteSink& sink);

}  // namespace Zorv
