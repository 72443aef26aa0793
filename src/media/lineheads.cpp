#include "media/lineheads_p.h"

#include <QIODevice>

namespace Zorv {

namespace {

const int ChunkSize = 16 * 1024;

}  // namespace

LineHeads::LineHeads(QIODevice* device, const QByteArray& separator)
    : m_device(device), m_separator(separator)
{
}

QByteArray LineHeads::next()
{
    QByteArray line;
    while (!m_atEnd) {
        const int end = m_chunk.indexOf(m_separator, m_pos);
        if (end >= 0) {
            take(line, end - m_pos);
            m_pos += m_separator.size();
            break;
        }
        // The last bytes may be the start of a separator.
        take(line, qMax(0, m_chunk.size() - m_pos - m_separator.size() + 1));
        if (!fill()) {
            take(line, m_chunk.size() - m_pos);
            m_atEnd = true;
        }
    }
    return line;
}

bool LineHeads::fill()
{
    const QByteArray more = m_device->read(ChunkSize);
    m_chunk = m_chunk.mid(m_pos) + more;
    m_pos = 0;
    return !more.isEmpty();
}

void LineHeads::take(QByteArray& line, int size)
{
    line += m_chunk.mid(m_pos, qMin(size, HeadSize - line.size()));
    m_pos += size;
}

}  // namespace Zorv
