#pragma once

#include <QtGlobal>

class QIODevice;

namespace Zorv {

/// Buffers the output of an encoder and writes it to a device in blocks.
class ByteSink
{
public:
    explicit ByteSink(QIODevice* device) : m_device(device), m_at(m_block) {}
    Q_DISABLE_COPY(ByteSink)

    /// A place to write `count` bytes, at most `Room`.
    static constexpr int Room = 1024;
    uchar* room(int count)
    {
        if (m_block + BlockSize - m_at < count) {
            flush();
        }
        return m_at;
    }
    /// Everything before `at` has been written.
    void take(uchar* at) { m_at = at; }

    /// Writes the rest. False if the device has ever accepted fewer bytes than it was given.
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
