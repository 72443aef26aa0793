#pragma once

#include <QtGlobal>

class QIODevice;

namespace Zorv {

/// The bytes of an encoder on their way to a device, a block at a time.
class ByteSink
{
public:
    explicit ByteSink(QIODevice* device) : m_device(device), m_at(m_block) {}
    Q_DISABLE_COPY(ByteSink)

    /// Where to write, with room for at least `count` bytes, at most `Room`.
    static constexpr int Room = 1024;
    uchar* room(int count)
    {
        if (m_block + BlockSize - m_at < count) {
            flush();
        }
        return m_at;
    }
    /// All in front of `at` has been written.
    void take(uchar* at) { m_at = at; }

    /// Hands on what is left. False if the device has ever taken less than it was given.
    bool finish();

private:
    void flush();

    static constexpr int BlockSize = 32768;

    QIODevice* m_device;
    uchar* m_at;
    bool m_failed = false;
    uchar m_block[BlockSize];
};

}  // namespace Zorv
