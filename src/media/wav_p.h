#pragma once

#include "media/soundsample.h"
#include "media/wav.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

namespace Zorv {

const quint16 PCMTag = 1;
const int DataHeaderSize = 8;

/// The header at the start of some bytes; missing bytes count as 0.
template <class Header>
Header parseWaveHeader(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    Header header{};
    stream >> header;
    return header;
}

/// The format of a sound with that many bytes of samples.
SampleInfo waveSampleInfo(const WaveFormatHeader& format, quint32 dataSize);

/// Reads up to `size` bytes. `size` comes from a header and may be far too large.
QByteArray readUpTo(QIODevice* device, qint64 size);

/// Searches a device piece by piece, so that a long sound is never completely in memory.
class ByteSearch
{
public:
    ByteSearch(QIODevice* device, const QByteArray& head) : m_device(device), m_bytes(head) {}

    /// Moves to the first occurrence of `text` and returns its distance from the start; -1 if there
    /// is none.
    qint64 find(const QByteArray& text)
    {
        int place = m_bytes.indexOf(text);
        while (place < 0) {
            drop(qMax(0, m_bytes.size() - text.size() + 1));
            if (!fill()) {
                return -1;
            }
            place = m_bytes.indexOf(text);
        }
        drop(place);
        return m_start;
    }

    /// Up to `size` bytes from the current position.
    QByteArray take(int size)
    {
        while (m_bytes.size() < size && fill()) {
        }
        return m_bytes.left(size);
    }

private:
    static constexpr int PieceSize = 64 * 1024;

    void drop(int size)
    {
        m_bytes.remove(0, size);
        m_start += size;
    }

    bool fill()
    {
        const QByteArray more = m_device->read(PieceSize);
        m_bytes += more;
        return !more.isEmpty();
    }

    QIODevice* m_device;
    QByteArray m_bytes;
    qint64 m_start = 0;
};

}  // namespace Zorv
