#pragma once

class QIODevice;

namespace Zorv {

/// True unless the header of a PNG or BMP file declares a picture of more than 64 MiB that the
/// bytes behind it cannot hold. To be asked before Qt takes the memory; nothing is consumed, and
/// what is no such file is left to its reader.
bool isHonestPNG(QIODevice* device);
bool isHonestBMP(QIODevice* device);

}  // namespace Zorv
