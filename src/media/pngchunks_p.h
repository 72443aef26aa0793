#pragma once

class QIODevice;

namespace Zorv {

/// True if a PNG file is whole: all chunks are there up to the last one, those that pixels need
/// have the checksum that they tell, and none declares more than 64 MiB that its bytes cannot hold.
/// To be asked before libpng reads it, which takes the memory first, and writes of each fault on
/// standard error. Nothing is consumed; the device is not sequential.
bool isWholePNG(QIODevice* device);

}  // namespace Zorv
