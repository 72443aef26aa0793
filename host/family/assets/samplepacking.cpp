#include "family/assets/samplepacking.h"

#include <QtEndian>

#include <algorithm>

namespace Family {

namespace {

// The block size limits the cost of a stream that declares a wrong size.
const int BlockSize = 32768;
const int CountSize = 4;

// Qt expects the unpacked size before the zlib stream, as a big-endian number.
QByteArray inflatedBlock(const char* stream, int count, int size)
{
    QByteArray packed(CountSize + count, Qt::Uninitialized);
    qToBigEndian(quint32(size), packed.data());
    std::copy(stream, stream + count, packed.data() + CountSize);
    return qUncompress(packed);
}

}  // namespace

QByteArray deflated(const QByteArray& samples)
{
    QByteArray result;
    for (int start = 0; start < samples.size(); start += BlockSize) {
        const auto* block = reinterpret_cast<const uchar*>(samples.constData()) + start;
        const int size = qMin(BlockSize, samples.size() - start);
        const QByteArray stream = qCompress(block, size).mid(CountSize);
        const bool isShorter = stream.size() < size;
        char count[CountSize];
        qToLittleEndian(quint32(isShorter ? stream.size() : size), count);
        result.append(count, CountSize);
        isShorter ? result.append(stream) : result.append(samples.constData() + start, size);
    }
    return result;
}

QByteArray inflated(const QByteArray& blocks, qint64 size)
{
    QByteArray result;
    int pos = 0;
    while (result.size() < size && pos + CountSize <= blocks.size()) {
        const int blockSize = int(qMin<qint64>(BlockSize, size - result.size()));
        const quint32 count = qFromLittleEndian<quint32>(blocks.constData() + pos);
        pos += CountSize;
        if (count > quint32(blockSize) || count > quint32(blocks.size() - pos)) {
            return {};
        }
        const char* stream = blocks.constData() + pos;
        const QByteArray block = int(count) == blockSize
                                     ? QByteArray::fromRawData(stream, blockSize)
                                     : inflatedBlock(stream, int(count), blockSize);
        if (block.size() != blockSize) {
            return {};
        }
        result.append(block);
        pos += int(count);
    }
    return result.size() == size && pos == blocks.size() ? result : QByteArray();
}

}  // namespace Family
