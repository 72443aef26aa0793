#pragma once

#include <QBuffer>

namespace Zorv {

/// A device that tells its size: the device itself, or the bytes of a pipe, which tells how many
/// they are only when it has been read.
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

/// Memory that a file may make a reader take, whatever it holds.
const qint64 FreeMemory = 64 << 20;

/// True unless a picture takes more than that, and more than the bytes of pixels that its file can
/// stand for. To be asked before the memory is taken; `bits` are those of a pixel in the file.
bool isHonestSize(double pixels, int bits, double bytes);

}  // namespace Zorv
