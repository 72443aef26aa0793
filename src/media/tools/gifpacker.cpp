#include "media/tools/gifpacker_p.h"

namespace Zorv {

namespace {

// The last code is never assigned, because some readers fail on a full table.
const int FullTable = 4095;

const int CodeMask = 0xfff;

quint32 keyOf(int code, int index)
{
    return quint32(code) << 8 | quint32(index);
}

}  // namespace

/// The entry of a known string plus one index, or the empty slot for it.
inline GIFPacker::Slot* GIFPacker::slotOf(Slot* table, int code, int index)
{
    const quint32 Mask = (1u << HashBits) - 1;
    const quint32 key = keyOf(code, index);
    quint32 at = (key * 2654435761u) >> (32 - HashBits);
    while (table[at] != 0 && table[at] >> 12 != key) {
        at = (at + 1) & Mask;
    }
    return table + at;
}

inline void GIFPacker::put(int code)
{
    m_pending |= quint32(code) << m_pendingBits;
    m_pendingBits += m_width;
    while (m_pendingBits >= 8) {
        *m_end++ = char(m_pending);
        m_pending >>= 8;
        m_pendingBits -= 8;
    }
    if (m_next >= 1 << m_width && m_width < 12) {
        ++m_width;
    }
}

void GIFPacker::clear()
{
    m_table.fill(0, 1 << HashBits);
    m_width = m_bits + 1;
    m_next = (1 << m_bits) + 2;
}

QByteArray GIFPacker::pack(const QVector<quint16>& pixels, int bits, int transparent)
{
    const int Clear = 1 << bits;
    const int End = Clear + 1;
    // At most 12 bits per pixel, plus a few codes that clear the table.
    m_codes.resize(pixels.size() / 2 * 3 + pixels.size() / 1024 + 16);
    m_end = m_codes.data();
    m_pending = 0;
    m_pendingBits = 0;
    m_bits = bits;
    clear();
    put(Clear);

    Slot* const table = m_table.data();
    int code = pixels.first() & Either ? transparent : pixels.first();
    for (int i = 1; i < pixels.size(); ++i) {
        const int pixel = pixels[i];
        // Transparent first: then long unchanged stretches become identical strings, whatever their
        // colours.
        const int first = pixel & Either ? transparent : pixel;
        Slot* const slot = slotOf(table, code, first);
        Slot known = *slot;
        if (known == 0 && pixel & Either) {
            known = *slotOf(table, code, pixel & 0xff);
        }
        if (known != 0) {
            code = int(known) & CodeMask;
            continue;
        }
        put(code);
        if (m_next < FullTable) {
            *slot = keyOf(code, first) << 12 | quint32(m_next++);
        } else {
            put(Clear);
            clear();
        }
        code = first;
    }
    put(code);
    put(End);
    if (m_pendingBits > 0) {
        *m_end++ = char(m_pending);
    }
    m_codes.truncate(int(m_end - m_codes.constData()));
    return m_codes;
}

}  // namespace Zorv
