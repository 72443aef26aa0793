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

/// True unless a PNG or BMP file declares a picture, or anything else, of more than 64 MiB that its
/// bytes cannot hold. To be asked before Qt takes the memory; nothing is consumed, and what is no
/// such file is left to its reader. The device is not sequential.
bool isHonestPNG(QIODevice* device);
bool isHonestBMP(QIODevice* device);

}  // namespace Zorv
