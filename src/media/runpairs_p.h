#pragma once

#include "media/bytesource_p.h"

#include <QtGlobal>

namespace Zorv {

class ByteSink;

/// The run-length code that RLE8 and PCX share: a byte whose upper two bits are those of the
/// marker holds a count of 0 to 63, and the next byte is the value; any other byte is a value.
enum class RunMarker : quint8 { Rle8 = 0x40, Pcx = 0xC0 };

/// Decodes a stretch at a time; a run may reach over the ends of stretches.
template <RunMarker marker>
class RunPairReader
{
public:
    /// What a stretch may be written past its end.
    static constexpr int Overshoot = 64;

    explicit RunPairReader(ByteSource& source) : m_source(source) {}

    /// Writes `count` values, and gives how many there were: fewer at the end of the bytes.
    qint64 read(uchar* values, qint64 count);

private:
    ByteSource& m_source;
    int m_carried = 0;
    uchar m_value = 0;
};

/// What has to be readable behind a stretch that is encoded.
constexpr int RunPairReadAhead = 72;

/// Encodes a stretch, whose runs end with it.
template <RunMarker marker>
void writeRunPairs(const uchar* values, qint64 count, ByteSink& sink);

}  // namespace Zorv
