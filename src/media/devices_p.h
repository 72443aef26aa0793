#pragma once

#include <QIODevice>

namespace Zorv {

/// True if the device is readable, or could be opened for reading.
inline bool openToRead(QIODevice* device)
{
    return device && (device->isReadable() || device->open(QIODevice::ReadOnly));
}

/// True if the device is writable, or could be opened for writing.
inline bool openToWrite(QIODevice* device)
{
    return device && (device->isWritable() || device->open(QIODevice::WriteOnly));
}

}  // namespace Zorv
