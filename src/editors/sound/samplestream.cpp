#include "editors/sound/samplestream_p.h"

#include <climits>
#include <cstring>

namespace Zorv {

SampleStream::SampleStream(QObject* parent) : QIODevice(parent)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void SampleStream::setBytes(const QByteArray& bytes)
{
    m_bytes = bytes;
    m_place = 0;
}

qint64 SampleStream::bytesAvailable() const
{
    const int left = m_bytes.size() - m_place;
    return m_loops && !m_bytes.isEmpty() ? qint64(INT_MAX) : left;
}

qint64 SampleStream::readData(char* data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        if (m_place >= m_bytes.size()) {
            if (!m_loops || m_bytes.isEmpty()) {
                break;
            }
            m_place = 0;
        }
        const qint64 piece = qMin<qint64>(size - done, m_bytes.size() - m_place);
        std::memcpy(data + done, m_bytes.constData() + m_place, size_t(piece));
        done += piece;
        m_place += int(piece);
    }
    return done;
}

}  // namespace Zorv
