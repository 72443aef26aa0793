#pragma once

#include <QtGlobal>

class QIODevice;

namespace Zorv {

/// Reads a device in blocks for a decoder, with zeros after the last byte.
///
/// A decoder checks for the end once before each packet and then reads without checks. A truncated
/// packet is completed with zeros; `endedInside()` reports that afterwards. The destructor leaves
/// the device after the last byte taken.
class ByteSource
{
public:
    /// The number of bytes readable after `end()`, and the largest useful argument of `more()`.
    static constexpr int Padding = 64;

    explicit ByteSource(QIODevice* device);
    ~ByteSource();
    Q_DISABLE_COPY(ByteSource)

    /// Whether a byte is left. Also loads at least `count` bytes into the block, unless the device
    /// has no more.
    bool more(int count)
    {
        if (m_end - m_at < count && !m_last) {
            refill();
        }
        return m_at < m_end;
    }

    const uchar* at() const { return m_at; }
    const uchar* end() const { return m_end; }
    /// Everything before `at` is consumed. `at` may lie in the padding.
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
