#include "media/bytesink_p.h"

#include <QIODevice>

namespace Zorv {

bool ByteSink::finish()
{
    flush();
    return !m_failed;
}

void ByteSink::flush()
{
    const qint64 size = m_at - m_block;
    m_at = m_block;
    if (size > 0 && m_device->write(reinterpret_cast<const char*>(m_block), size) != size) {
        m_failed = true;
    }
}

}  // namespace Zorv
