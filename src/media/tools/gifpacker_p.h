#pragma once

#include <QByteArray>
#include <QVector>

namespace Zorv {

/// Packs the pixels of a GIF frame into codes of LZW.
///
/// A pixel that does not change what the canvas shows has two indices that are as good: its colour's
/// and the transparent one. The packer takes, pixel by pixel, the one that goes on with a string that
/// it knows; giflib's own packer knows one index a pixel.
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

    quint32& slotOf(quint32 key);
    int child(int code, int pixel);
    bool extend(quint16 pixel, int transparent);
    void start(quint16 pixel, int transparent);
    void put(int code);
    void reset();

    QVector<quint32> m_table;  ///< key << 12 | code; 0 is empty
    QByteArray m_codes;
    quint32 m_pending = 0;
    int m_pendingBits = 0;
    int m_bits = 2;
    int m_width = 3;
    int m_next = 6;
    int m_code = 0;
    int m_last = -1;
};

}  // namespace Zorv
