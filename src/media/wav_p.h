#pragma once

#include "media/soundsample.h"
#include "media/wav.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

namespace Zorv {

const quint16 PCMTag = 1;
const int DataHeaderSize = 8;

/// The header that some bytes begin with; what they lack is 0.
template <class Header>
Header parseWaveHeader(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    Header header{};
    stream >> header;
    return header;
}

/// The form of so many bytes of samples.
SampleInfo waveSampleInfo(const WaveFormatHeader& format, quint32 dataSize);

/// As many bytes as there are of those that a header declares, which may be any number.
QByteArray readUpTo(QIODevice* device, qint64 size);

/// The bytes of a device in pieces, so that those of a long sound are never all in memory.
class ByteSearch
{
public:
    ByteSearch(QIODevice* device, const QByteArray& head) : m_device(device), m_bytes(head) {}

    /// Moves to the first place of `text`, and gives its distance from the start; -1 without one.
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

    /// Up to `size` bytes from there.
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
