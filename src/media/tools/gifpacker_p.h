#pragma once

#include <QByteArray>
#include <QVector>

namespace Zorv {

/// LZW-compresses the pixels of a GIF frame.
///
/// A pixel that does not change the canvas can have either of two indices: its colour's, or the
/// transparent one. At each pixel the packer takes the one that extends a known string, and tries
/// the transparent one first. giflib's own packer knows only one index per pixel.
class GIFPacker
{
public:
    /// Set in a pixel that may also have the transparent index instead of the one in its low byte.
    static const quint16 Either = 0x100;

    /// `bits` is the size of an index, 2 to 8; every index is below 1 << `bits`. `transparent` is
    /// used only for pixels with `Either`.
    QByteArray pack(const QVector<quint16>& pixels, int bits, int transparent);

private:
    static const int HashBits = 14;

    /// An entry of the string table: key << 12 | code; 0 is empty.
    using Slot = quint32;

    static Slot* slotOf(Slot* table, int code, int index);
    void put(int code);
    void clear();

    QVector<Slot> m_table;
    QByteArray m_codes;
    char* m_end = nullptr;  ///< end of the codes so far
    quint32 m_pending = 0;
    int m_pendingBits = 0;
    int m_bits = 0;
    int m_width = 0;  ///< bits of a code
    int m_next = 0;   ///< next free code
};

}  // namespace Zorv
