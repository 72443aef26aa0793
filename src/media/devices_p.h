#pragma once

#include <QIODevice>

namespace Zorv {

/// A device that is open for reading, or has been opened here.
inline bool openToRead(QIODevice* device)
{
    return device && (device->isReadable() || device->open(QIODevice::ReadOnly));
}

/// A device that is open for writing, or has been opened here.
inline bool openToWrite(QIODevice* device)
{
    return device && (device->isWritable() || device->open(QIODevice::WriteOnly));
}

}  // namespace Zorv
