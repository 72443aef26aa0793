// Checks a PNG file chunk by chunk before libpng reads it.
//
// A chunk is a length, a four-letter name, the data and a checksum. The walk skips from chunk to
// chunk by the lengths, without decompressing anything. It fails if a chunk is longer than the
// file, a name is not of letters, a needed checksum is wrong, or the end chunk is missing. Declared
// sizes are compared with the bytes present: deflate cannot expand them by more than a known
// factor.

#include "media/pngchunks_p.h"

#include "media/crc32_p.h"
#include "media/imagesize_p.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace Zorv {

namespace {

const int Signature = 8;
const int ChunkHead = 8;
const int HeadSize = 13;
const int Checksum = 4;
const int Block = 1 << 16;
const qint64 LargestText = 8000000;

// One compressed byte holds at most 1032 bytes.
const int DeflateRatio = 1032;

bool isHonestHead(const QByteArray& data, qint64 available)
{
    static const int channels[] = {1, 0, 3, 1, 2, 0, 4};
    const uchar type = uchar(data[9]);
    const double pixels = double(qFromBigEndian<quint32>(data.constData())) *
                          qFromBigEndian<quint32>(data.constData() + 4);
    const int bits = uchar(data[8]) * (type < 7 ? channels[type] : 0);
    return isHonestSize(pixels, bits, double(available) * DeflateRatio);
}

bool isName(const QByteArray& type)
{
    return std::all_of(type.begin(), type.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

/// Walks over the chunks of a file.
class ChunkWalk
{
public:
    explicit ChunkWalk(QIODevice* device)
        : m_device(device), m_at(device->pos() + Signature), m_end(device->size())
    {
    }

    bool isWhole()
    {
        while (m_at < m_end && m_device->seek(m_at)) {
            const QByteArray head = m_device->read(ChunkHead);
            if (head.size() < ChunkHead) {
                return false;
            }
            m_length = qFromBigEndian<quint32>(head.constData());
            m_type = head.mid(4);
            if (m_type == "IEND" && m_end - m_at < ChunkHead + Checksum) {
                // Some programs omit the last checksum.
                return m_hasPixels && m_length == 0;
            }
            if (m_length > m_end - m_at - ChunkHead - Checksum || !isName(m_type) ||
                !isGoodChunk()) {
                return false;
            }
            if (m_type == "IEND") {
                return m_hasPixels;
            }
            m_isFirst = false;
            m_hasPixels = m_hasPixels || m_type == "IDAT";
            m_at += ChunkHead + m_length + Checksum;
        }
        return false;
    }

private:
    bool isGoodChunk()
    {
        if (m_isFirst) {
            return m_type == "IHDR" && m_length == HeadSize &&
                   isHonestHead(m_device->peek(HeadSize), m_end - m_at) && hasChecksum();
        }
        // libpng allocates memory for compressed texts before it reads them.
        if (m_type == "zTXt" || m_type == "iTXt") {
            m_texts += qMin(LargestText, m_length * DeflateRatio);
            return m_texts <= FreeMemory;
        }
        // The name of a chunk that is not needed for pixels begins with a small letter.
        const bool isNeeded = m_type[0] >= 'A' && m_type[0] <= 'Z';
        return !isNeeded || hasChecksum();
    }

    bool hasChecksum()
    {
        Crc32 checksum;
        checksum.add(m_type);
        for (qint64 left = m_length; left > 0;) {
            const QByteArray bytes = m_device->read(qMin<qint64>(left, Block));
            if (bytes.isEmpty()) {
                return false;
            }
            checksum.add(bytes);
            left -= bytes.size();
        }
        const QByteArray told = m_device->read(Checksum);
        return told.size() == Checksum &&
               qFromBigEndian<quint32>(told.constData()) == checksum.value();
    }

    QIODevice* m_device;
    qint64 m_at;
    qint64 m_end;
    qint64 m_length = 0;
    QByteArray m_type;
    qint64 m_texts = 0;
    bool m_isFirst = true;
    bool m_hasPixels = false;
};

}  // namespace

bool isWholePNG(QIODevice* device)
{
    const qint64 begin = device->pos();
    const bool isWhole = ChunkWalk(device).isWhole();
    return device->seek(begin) && isWhole;
}

}  // namespace Zorv
