#pragma once

#include <QtGlobal>

class QIODevice;

namespace Zorv {

/// The bytes of a device for a decoder, a block at a time, with zeros behind the last one.
///
/// A decoder asks for the end in front of a packet and reads on without a check; a packet
/// that lacks bytes is completed with zeros, and `endedInside()` tells so afterwards. In the
/// end the device stands behind the last byte taken.
class ByteSource
{
public:
    /// What may be read behind `end()`, and the most that `more()` can promise.
    static constexpr int Padding = 64;

    explicit ByteSource(QIODevice* device);
    ~ByteSource();
    Q_DISABLE_COPY(ByteSource)

    /// Whether a byte is left. `count` of them are in the block then, unless the
    /// device has no more.
    bool more(int count)
    {
        if (m_end - m_at < count && !m_last) {
            refill();
        }
        return m_at < m_end;
    }

    const uchar* at() const { return m_at; }
    const uchar* end() const { return m_end; }
    /// All in front of `at` is taken. It may stand in the padding.
    void take(const uchar* at) { m_at = at; }

    bool endedInside() const { return m_at > m_end; }

private:
    void leaveDevice();
    void refill();

    static constexpr int BlockSize = 32768;

    QIODevice* m_device;
    const uchar* m_at;
    const uchar* m_end;
    bool m_last = false;
    uchar m_block[BlockSize + Padding];
};

}  // namespace Zorv
