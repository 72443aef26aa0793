#include "media/tools/gifpacker_p.h"

namespace Zorv {

namespace {

// The last code is never given away: some readers stumble over a full table.
const int FullTable = 4095;

}  // namespace

/// The entry of a key, or the empty one where it belongs.
inline quint32& GIFPacker::slotOf(quint32 key)
{
    const quint32 Mask = (1u << HashBits) - 1;
    quint32* const table = m_table.data();
    quint32 at = (key * 2654435761u) >> (32 - HashBits);
    while (table[at] != 0 && table[at] >> 12 != key) {
        at = (at + 1) & Mask;
    }
    return table[at];
}

/// The code of the string of `code` and `pixel`; 0 if there is none.
inline int GIFPacker::child(int code, int pixel)
{
    return int(slotOf(quint32(code) << 8 | quint32(pixel)) & 0xfff);
}

/// Goes on with a longer string that is known.
inline bool GIFPacker::extend(quint16 pixel, int transparent)
{
    if (pixel & Either) {
        if (const int longer = child(m_code, transparent)) {
            m_code = longer;
            m_last = transparent;
            return true;
        }
    }
    const int index = pixel & 0xff;
    if (const int longer = child(m_code, index)) {
        m_code = longer;
        m_last = index;
        return true;
    }
    return false;
}

/// Begins a string. A run of one colour goes on where it can.
inline void GIFPacker::start(quint16 pixel, int transparent)
{
    const int index = pixel & 0xff;
    m_last = pixel & Either && m_last != index ? transparent : index;
    m_code = m_last;
}

inline void GIFPacker::put(int code)
{
    m_pending |= quint32(code) << m_pendingBits;
    m_pendingBits += m_width;
    while (m_pendingBits >= 8) {
        m_codes.append(char(m_pending & 0xff));
        m_pending >>= 8;
        m_pendingBits -= 8;
    }
    if (m_next >= 1 << m_width && m_width < 12) {
        ++m_width;
    }
}

void GIFPacker::reset()
{
    m_table.fill(0, 1 << HashBits);
    m_width = m_bits + 1;
    m_next = (1 << m_bits) + 2;
}

QByteArray GIFPacker::pack(const QVector<quint16>& pixels, int bits, int transparent)
{
    const int Clear = 1 << bits;
    const int End = Clear + 1;
    m_bits = bits;
    m_codes.resize(0);
    m_pending = 0;
    m_pendingBits = 0;
    m_last = -1;
    reset();
    put(Clear);

    start(pixels.first(), transparent);
    for (int i = 1; i < pixels.size(); ++i) {
        if (extend(pixels[i], transparent)) {
            continue;
        }
        const int string = m_code;
        put(string);
        start(pixels[i], transparent);
        if (m_next < FullTable) {
            const quint32 key = quint32(string) << 8 | quint32(m_code);
            slotOf(key) = key << 12 | quint32(m_next++);
        } else {
            put(Clear);
            reset();
        }
    }
    put(m_code);
    put(End);
    if (m_pendingBits > 0) {
        m_codes.append(char(m_pending));
    }
    return m_codes;
}

}  // namespace Zorv
