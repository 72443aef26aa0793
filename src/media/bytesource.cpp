#include "media/bytesource_p.h"

#include <QIODevice>

#include <cstring>

namespace Zorv {

ByteSource::ByteSource(QIODevice* device) : m_device(device), m_at(m_block), m_end(m_block)
{
    refill();
}

ByteSource::~ByteSource()
{
    leaveDevice();
}

// Blocks are only peeked, so nothing ever has to be pushed back into a pipe.
void ByteSource::leaveDevice()
{
    m_device->skip(qMin(m_at, m_end) - m_block);
}

void ByteSource::refill()
{
    leaveDevice();
    const qint64 size =
        qMax(qint64(0), m_device->peek(reinterpret_cast<char*>(m_block), BlockSize));
    std::memset(m_block + size, 0, Padding);
    m_at = m_block;
    m_end = m_block + size;
    m_last = size < BlockSize;
}

}  // namespace Zorv
