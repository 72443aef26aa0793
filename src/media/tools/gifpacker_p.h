#pragma once

#include <QByteArray>
#include <QVector>

namespace Zorv {

/// Packs the pixels of a GIF frame into codes of LZW.
///
/// A pixel that does not change what the canvas shows has two indices that are as good: its
/// colour's and the transparent one. The packer takes, pixel by pixel, the one that goes on with a
/// string that it knows, the transparent one before the other; giflib's own packer knows one index
/// a pixel.
class GIFPacker
{
public:
    /// Set in a pixel that may be the transparent index as well as the index in its low byte.
    static const quint16 Either = 0x100;

    /// `bits` is what an index takes, 2 to 8; every index is below 1 << `bits`. `transparent` is
    /// looked at for pixels with `Either` alone.
    QByteArray pack(const QVector<quint16>& pixels, int bits, int transparent);

private:
    static const int HashBits = 14;

    /// An entry of the table of strings: key << 12 | code; 0 is empty.
    using Slot = quint32;

    static Slot* slotOf(Slot* table, int code, int index);
    void put(int code);
    void clear();

    QVector<Slot> m_table;
    QByteArray m_codes;
    char* m_end = nullptr;  ///< of the codes so far
    quint32 m_pending = 0;
    int m_pendingBits = 0;
    int m_bits = 0;
    int m_width = 0;  ///< of a code
    int m_next = 0;   ///< code to be given away
};

}  // namespace Zorv
