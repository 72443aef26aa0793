#pragma once

#include <QBuffer>

namespace Zorv {

/// A device with a known size: the device itself, or for a pipe, a buffer with all its bytes,
/// because a pipe's size is known only after reading.
class SizedDevice
{
public:
    explicit SizedDevice(QIODevice* device);
    Q_DISABLE_COPY(SizedDevice)

    QIODevice* get() const { return m_device; }

private:
    QBuffer m_whole;
    QIODevice* m_device;
};

/// Memory, in bytes, that any file may claim, whatever its length.
const qint64 FreeMemory = 64 << 20;

/// False if a picture needs more than `FreeMemory` and also more than the bytes of the file can
/// represent. Check this before allocating. `bits` is the number of bits per pixel in the file.
bool isHonestSize(double pixels, int bits, double bytes);

}  // namespace Zorv
