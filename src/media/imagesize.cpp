#include "media/imagesize_p.h"

namespace Zorv {

SizedDevice::SizedDevice(QIODevice* device) : m_device(device)
{
    if (device->isSequential()) {
        m_whole.setData(device->readAll());
        m_whole.open(QIODevice::ReadOnly);
        m_device = &m_whole;
    }
}

// In floating point, because the product of width, height and bits in a broken header overflows 64
// bits.
bool isHonestSize(double pixels, int bits, double bytes)
{
    const int bytesInMemory = bits <= 8 ? 1 : bits <= 32 ? 4 : 8;
    return pixels * bytesInMemory <= double(FreeMemory) || pixels * bits / 8 <= bytes;
}

}  // namespace Zorv
